#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `settings show|set|reset|export|import|document`. They throw what stops them.
void AddSettingsCommand(CLI::App& app);

}  // namespace orvane::tool
