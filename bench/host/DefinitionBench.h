#pragma once

#include "host/Scene.h"

namespace orvane::host {

/// Compares reading a menu definition file of 1 MB with reading and deciphering it.
void BenchDefinition(Scene& scene);

}  // namespace orvane::host
