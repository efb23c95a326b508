#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `menu write` and `menu read`. They throw what stops them.
void AddMenuCommand(CLI::App& app);

}  // namespace orvane::tool
