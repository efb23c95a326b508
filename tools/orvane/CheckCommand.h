#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `check` to `menu`: prints all that is wrong with a menu and sets `exitCode` to 0 when
/// nothing is, 1 for warnings, 2 for errors.
void AddCheckCommand(CLI::App& menu, int& exitCode);

}  // namespace orvane::tool
