#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `actions list` and `actions check`, which look into a file of custom actions; check sets
/// `exitCode` to 1 for warnings and 2 for errors.
void AddActionsCommand(CLI::App& app, int& exitCode);

}  // namespace orvane::tool
