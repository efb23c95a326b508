#include "PreviewCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "HostFile.h"
#include "PreviewJson.h"
#include "PreviewSession.h"
#include "memory/MenuText.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

struct Arguments {
  PreviewOptions options;
  std::string format = "text";
  std::string effects;  // the file to write them to
  bool helpTexts = false;
};

/// One JSON object a line.
std::string EffectLines(const memory::Effects& effects) {
  std::string lines;
  for (const auto& effect : EffectsJson(effects))
    lines += effect.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
  return lines;
}

void PrintText(PreviewSession& session) {
  const std::string text = ToUtf8(memory::MenuText(session.desktop.menus, session.menu));
  if (session.Invokes()) session.Invoke();
  std::cout << text;
  // The menu alone is the output; what else happened goes beside it.
  std::cerr << EffectLines(session.desktop.effects);
}

void PrintJson(PreviewSession& session, std::int32_t result, bool helpTexts) {
  nlohmann::ordered_json json = {{"result", result},
                                 {"menu", MenuJson(session, session.menu, helpTexts)}};
  if (session.Invokes()) session.Invoke();
  json["effects"] = EffectsJson(session.desktop.effects);
  std::cout << json.dump(1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

void Preview(const Arguments& arguments) {
  PreviewSession session(arguments.options);
  const std::int32_t result = session.BuildMenu();
  if (arguments.format == "json")
    PrintJson(session, result, arguments.helpTexts);
  else
    PrintText(session);
  if (!std::cout.flush()) throw std::runtime_error("standard output: cannot be written");
  if (arguments.effects.empty()) return;
  const std::string lines = EffectLines(session.desktop.effects);
  WriteHostFile(arguments.effects, std::as_bytes(std::span(lines)));
}

void AddOptions(CLI::App& preview, Arguments& arguments) {
  PreviewOptions& options = arguments.options;
  // Each repeatable option takes one value, so that a value may begin with anything.
  const auto repeatable = [&](const char* name, std::vector<std::string>& values,
                              const char* help) {
    preview.add_option(name, values, help)->expected(1)->take_all();
  };
  preview.add_option("--config", options.config, "Menu definition file to show")->required();
  preview.add_option("--registry", options.registry,
                     "Registry export with settings and lists, imported first");
  preview.add_option("--drive-c", options.driveC,
                     "Directory that plays drive C:; never written to");
  repeatable("--drive", options.drives,
             "Directory that plays another drive, as LETTER=DIRECTORY (repeatable)");
  preview.add_option("--actions", options.actions, "Custom actions file to play from");
  preview.add_option("--folder", options.folder,
                     "Folder that was right-clicked into, as a Windows path");
  repeatable("--select", options.select, "Selected file or folder, as a Windows path (repeatable)");
  preview.add_option("--id-first", options.idFirst, "First command identifier that is free")
      ->capture_default_str();
  preview.add_option("--id-last", options.idLast, "Last command identifier that is free")
      ->capture_default_str();
  preview.add_option("--format", arguments.format, "Output: text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  preview.add_flag("--help-texts", arguments.helpTexts, "Add the help texts to the JSON output");
  repeatable(
      "--open", options.open,
      "Submenu to open, as \"Caption/Caption\" (repeatable); dynamic folders are listed then");
  auto* invoke =
      preview.add_option("--invoke", options.invoke, "Entry to choose, as \"Caption/Caption\"");
  preview.add_option("--verb", options.verb, "Verb to invoke instead, such as Item3")
      ->excludes(invoke);
  preview.add_option("--effects", arguments.effects,
                     "File for what happened, one JSON object a line, as on standard error");
  preview.add_flag("--ctrl", options.ctrl, "The Ctrl key is held down");
  preview.add_flag("--shift", options.shift, "The Shift key is held down");
  repeatable("--window", options.windows,
             "Window as CLASS:CAPTION:EXE; the first asks for the menu, the next is its parent "
             "(repeatable)");
  repeatable("--answer", options.answers,
             "Answer to the next dialog: a destination folder, ok, cancel, yes, no, a picked path "
             "(repeatable)");
}

}  // namespace

void AddPreviewCommand(CLI::App& app) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App* preview =
      app.add_subcommand("preview", "Shows the menu of a right-click on a desktop in memory");
  AddOptions(*preview, *arguments);
  preview->callback([arguments] { Preview(*arguments); });
}

}  // namespace orvane::tool
