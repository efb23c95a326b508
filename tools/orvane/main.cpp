// The command-line companion.

#include <CLI/CLI.hpp>

#include <iostream>

#include "MenuCommand.h"
#include "PreviewCommand.h"

int main(int argc, char** argv) {
  CLI::App app("Orvane's companion", "orvane");
  app.require_subcommand(1);
  int exitCode = 0;
  orvane::tool::AddMenuCommand(app, exitCode);
  orvane::tool::AddPreviewCommand(app, exitCode);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);  // --help
    std::cerr << "orvane: " << error.what() << '\n';
    return 2;
  }
  return exitCode;
}
