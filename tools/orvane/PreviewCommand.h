#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `preview`. It throws what stops it.
void AddPreviewCommand(CLI::App& app);

}  // namespace orvane::tool
