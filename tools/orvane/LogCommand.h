#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `log read` and `log listen`. They throw what stops them.
void AddLogCommand(CLI::App& app);

}  // namespace orvane::tool
