#include "MenuCommand.h"

#include <CLI/CLI.hpp>

#include <memory>

#include "CheckCommand.h"
#include "HostFile.h"
#include "MenuFiles.h"
#include "menudoc/MenuTree.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

struct Arguments {
  std::string input;
  std::string output = StandardStream;
  MenuOptions options;
};

void WriteMenu(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  files.WriteDefinitionFile(files.ReadSound(arguments.input), arguments.output);
}

void ReadMenu(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  files.WriteText(FormatMenu(files.ReadDefinitionFile(arguments.input)), arguments.output);
}

/// A line for each item, indented as it is nested: its caption and what it does.
std::string Outline(const MenuDocument& menu, const clsOrvaneDataTools& tools) {
  const std::vector<int> depths = DepthsOf(menu);
  const int inRoot = HasRoot(menu) ? 1 : 0;
  std::string text;
  for (std::size_t i = 0; i < menu.items.size(); ++i) {
    const clsOrvaneData& item = menu.items[i].data;
    const bool isRoot = i == 0 && inRoot;
    text.append(isRoot ? 0 : 2 * static_cast<std::size_t>(depths[i] + inRoot), ' ');
    if (item.IsTypeSeparator()) {
      text += "----\n";
      continue;
    }
    text += ToUtf8(item.Caption());
    if (!item.IsTypeRoot() && !item.IsTypePopupMenu())
      text += "  (" + ToUtf8(tools.GetDesignerDescription(item)) + ")";
    text += "\n";
  }
  return text;
}

void ShowMenu(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  const MenuDocument menu = files.ReadSound(arguments.input);
  files.WriteText(Outline(menu, files.DataTools()), StandardStream);
}

/// A subcommand of `menu` that runs `action` on its arguments.
template <class Action>
CLI::App& Add(CLI::App& menu, const char* name, const char* help, const char* input,
              Action action) {
  CLI::App& command = *menu.add_subcommand(name, help);
  const auto arguments = std::make_shared<Arguments>();
  command.add_option(input, arguments->input, "The file to read, - for standard input")->required();
  AddMenuOptions(command, arguments->options);
  command.callback([=] { action(*arguments); });
  return command;
}

}  // namespace

void AddMenuCommand(CLI::App& app, int& exitCode) {
  CLI::App& menu = *app.add_subcommand("menu", "Makes, reads and checks menus");
  menu.require_subcommand(1);
  const auto arguments = std::make_shared<Arguments>();
  const auto addOutput = [&](CLI::App& command, const char* name) {
    return command.add_option(name, arguments->output, "The file to write, - for standard output");
  };
  CLI::App& write = Add(menu, "write", "Writes the definition file of a document", "MENU.json",
                        [=](Arguments written) {
                          written.output = arguments->output;
                          WriteMenu(written);
                        });
  addOutput(write, "FILE.cfg")->required();
  CLI::App& read =
      Add(menu, "read", "Makes a document of a definition file", "FILE.cfg", [=](Arguments read) {
        read.output = arguments->output;
        ReadMenu(read);
      });
  addOutput(read, "MENU.json");
  Add(menu, "show", "Shows a document or definition file, a line for each item", "FILE", ShowMenu);
  AddCheckCommand(menu, exitCode);
}

}  // namespace orvane::tool
