#pragma once

#include <span>
#include <string>

namespace CLI {
class App;
}

namespace orvane::tool {

/// std::runtime_error when the arguments name a subcommand that there is not; its text names the
/// nearest that there is.
void CheckSubcommands(const CLI::App& app, std::span<const std::string> arguments);

}  // namespace orvane::tool
