#pragma once

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// Adds `preview`. When it was asked for, `exitCode` is set to 0, or to 2 after a line on standard
/// error.
void AddPreviewCommand(CLI::App& app, int& exitCode);

}  // namespace orvane::tool
