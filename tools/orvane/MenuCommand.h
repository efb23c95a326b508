#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `menu` with write, read, show and check. They throw what stops them; check sets `exitCode`
/// to 1 for warnings and 2 for errors.
void AddMenuCommand(CLI::App& app, int& exitCode);

}  // namespace orvane::tool
