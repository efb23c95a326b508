#pragma once

namespace CLI {
class App;
}

namespace orvane::tool {

/// Adds `completion bash|powershell`, which prints a script that completes the subcommands and
/// options of `app` as they are when it is asked for.
void AddCompletionCommand(CLI::App& app);

}  // namespace orvane::tool
