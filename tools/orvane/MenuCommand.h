#pragma once

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// Adds `menu write` and `menu read`. When one of them was asked for, `exitCode` is set to 0, or to
/// 2 after a line on standard error.
void AddMenuCommand(CLI::App& app, int& exitCode);

}  // namespace orvane::tool
