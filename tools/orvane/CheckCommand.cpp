#include "CheckCommand.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <nlohmann/json.hpp>

#include "FindingsText.h"
#include "HostFile.h"
#include "MenuFiles.h"

namespace orvane::tool {
namespace {

struct Arguments {
  std::string file;
  bool json = false;
  MenuOptions options;
};

int Check(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  const std::vector<Finding> findings = files.Read(arguments.file).findings;
  files.WriteText(arguments.json ? FindingsJson(findings) : FindingsText(findings), StandardStream);
  return FindingsExitCode(findings);
}

}  // namespace

void AddCheckCommand(CLI::App& menu, int& exitCode) {
  CLI::App& check = *menu.add_subcommand("check",
                                         "Says all that is wrong with a document or definition "
                                         "file; exit code 1 for warnings, 2 for errors");
  const auto arguments = std::make_shared<Arguments>();
  check.add_option("FILE", arguments->file, "The file to check, - for standard input")->required();
  check.add_flag("--json", arguments->json, "As a JSON list of place, severity, text and remedy");
  AddMenuOptions(check, arguments->options);
  check.add_option("--drive-c", arguments->options.driveC,
                   "Directory to look for the menu's locations in, as drive C:");
  check.callback([=, &exitCode] { exitCode = Check(*arguments); });
}

}  // namespace orvane::tool
