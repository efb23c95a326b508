// The command-line companion.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

#include "ActionsCommand.h"
#include "CompletionCommand.h"
#include "DoctorCommand.h"
#include "Host.h"
#include "LogCommand.h"
#include "MenuCommand.h"
#include "PreviewCommand.h"
#include "SettingsCommand.h"
#include "Subcommands.h"
#include "TaskCommand.h"

namespace orvane::tool {
namespace {

/// One line for each. A subcommand throws what stops it (exit code 2); one that has more to say
/// than success sets `exitCode`.
void AddSubcommands(CLI::App& app, int& exitCode) {
  AddMenuCommand(app, exitCode);
  AddPreviewCommand(app);
  AddTaskCommand(app);
  AddActionsCommand(app, exitCode);
  AddDoctorCommand(app, exitCode);
  AddSettingsCommand(app);
  AddLogCommand(app);
  AddCompletionCommand(app);
}

int Run(std::vector<std::string> arguments) {
  CLI::App app("Orvane's companion", "orvane");
  app.allow_windows_style_options(false);  // "/name" is a path everywhere
  app.require_subcommand(1);
  app.set_version_flag("--version", "orvane " ORVANE_VERSION, "Print the version and end");
  int exitCode = 0;
  AddSubcommands(app, exitCode);
  try {
    CheckSubcommands(app, arguments);
    std::ranges::reverse(arguments);  // as the parser takes them
    app.parse(std::move(arguments));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);  // --help, --version
    throw;
  }
  return exitCode;
}

}  // namespace
}  // namespace orvane::tool

int main(int argc, char** argv) {
  const orvane::tool::HostOutput output;
  try {
    return orvane::tool::Run(orvane::tool::ProgramArguments(argc, argv));
  } catch (const std::exception& error) {
    std::cerr << "orvane: " << error.what() << '\n';
    return 2;
  }
}
