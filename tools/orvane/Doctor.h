#pragma once

#include "DoctorReport.h"

namespace orvane::tool {

/// Examines the installation on this machine, as the current user has it, and tries right-clicks.
/// Changes nothing that stays. std::runtime_error where there is no Windows.
DoctorReport Examine();

}  // namespace orvane::tool
