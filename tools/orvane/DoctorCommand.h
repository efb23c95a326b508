#pragma once

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// `orvane doctor`. Sets `exitCode` to 1 when faults are found.
void AddDoctorCommand(CLI::App& app, int& exitCode);

}  // namespace orvane::tool
