#pragma once

#include <cstdint>

#include "support/Error.h"

namespace orvane {

/// The error that a return code of 0 to 32 of the shell's execute call stands for (Windows:
/// ShellExecute documentation).
Error OpeningError(std::int32_t code);

}  // namespace orvane
