#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `task run`, which says what an action or a selection task of a menu would do with a
/// selection.
void AddTaskCommand(CLI::App& app);

}  // namespace orvane::tool
