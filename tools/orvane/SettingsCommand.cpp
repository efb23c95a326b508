#include "SettingsCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "Host.h"
#include "HostFile.h"
#include "RegFileSettings.h"
#include "SettingText.h"
#include "SettingsDocument.h"
#include "SettingsImport.h"
#include "SettingsStore.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

struct Arguments {
  std::string file;  // that holds the settings
  std::vector<std::string> names;
  std::string name, value;
  std::string exchanged;  // the file to export to or import from
  std::string form;
  bool json = false;
};

std::unique_ptr<SettingsStore> Open(const Arguments& arguments) {
  return arguments.file.empty() ? OpenUserSettings() : OpenSettingsFile(arguments.file);
}

const Setting& Find(const std::string& name) {
  if (const auto wide = FromUtf8(name))
    if (const Setting* setting = FindSetting(*wide)) return *setting;
  throw std::runtime_error("\"" + name + "\" is no setting; \"orvane settings show\" names all");
}

/// The named ones, or all.
std::vector<const Setting*> Chosen(const std::vector<std::string>& names) {
  std::vector<const Setting*> chosen;
  chosen.reserve(names.size());
  for (const std::string& name : names) chosen.push_back(&Find(name));
  if (names.empty())
    for (const Setting& setting : Settings()) chosen.push_back(&setting);
  return chosen;
}

/// A setting with its value now and without any.
struct Shown {
  const Setting& setting;
  std::string value, fallback;
};

void PrintLine(const Shown& shown) {
  std::cout << ToUtf8(shown.setting.value) << " = " << shown.value
            << (shown.value == shown.fallback ? "  (default)" : "") << '\n';
}

void PrintAll(const Shown& shown) {
  PrintLine(shown);
  const Setting& setting = shown.setting;
  std::cout << "  " << ToUtf8(setting.meaning) << "\n  Kind: " << KindName(setting)
            << "; default: " << shown.fallback << '\n';
  for (const Setting::Name& name : setting.names)
    std::cout << "    " << name.number << "  " << ToUtf8(name.name) << ": " << ToUtf8(name.meaning)
              << '\n';
}

nlohmann::ordered_json Json(const Shown& shown) {
  return {{"name", ToUtf8(shown.setting.value)},
          {"kind", KindName(shown.setting)},
          {"value", shown.value},
          {"default", shown.fallback},
          {"meaning", ToUtf8(shown.setting.meaning)}};
}

void Show(const Arguments& arguments) {
  const auto store = Open(arguments);
  const auto system = HostSystem();
  const clsOptions options = LoadSettings(store->Values(), *system);
  const clsOptions defaults = DefaultSettings(*system);
  auto list = nlohmann::ordered_json::array();
  for (const Setting* setting : Chosen(arguments.names)) {
    const Shown shown{*setting, SettingText(*setting, ValueOf(options, *setting)),
                      SettingText(*setting, ValueOf(defaults, *setting))};
    if (arguments.json)
      list.push_back(Json(shown));
    else if (arguments.names.empty())
      PrintLine(shown);
    else
      PrintAll(shown);
  }
  if (arguments.json) std::cout << list.dump(1) << '\n';
}

void Set(const Arguments& arguments) {
  const Setting& setting = Find(arguments.name);
  const SettingChange change{&setting, ToRegistry(ParseSetting(setting, arguments.value))};
  Open(arguments)->Apply({&change, 1});
}

void Reset(const Arguments& arguments) {
  std::vector<SettingChange> changes;
  for (const Setting* setting : Chosen(arguments.names)) changes.push_back({setting, {}});
  Open(arguments)->Apply(changes);
}

/// Writes what is set; what is not stays at its default wherever the file is imported.
void Export(const Arguments& arguments) {
  const auto store = Open(arguments);
  std::vector<memory::RegFileChange> content;
  std::unique_ptr<RegistryKey> key;
  const bool exists = store->Values().OpenToRead(Hive::CurrentUser, SettingsKey, key) == 0;
  for (const Setting& setting : Settings()) {
    RegistryValue value;
    if (exists && key->Read(setting.value, value) == 0)
      content.push_back(ChangeTo(setting, std::move(value)));
  }
  WriteHostFile(arguments.exchanged, memory::FormatRegFile(content));
}

void Import(const Arguments& arguments) {
  const std::vector<memory::RegFileChange> content = ReadRegFile(arguments.exchanged);
  SettingsImport settings;
  try {
    settings = ReadSettings(content);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(arguments.exchanged + ": " + error.what() + "; nothing was imported");
  }
  Open(arguments)->Apply(settings.changes);
  if (settings.leftOut > 0)
    std::cerr << "orvane: " << settings.leftOut << " values of keys below were left out\n";
}

using Command = void (*)(const Arguments&);

CLI::App* Add(CLI::App& app, const std::shared_ptr<Arguments>& arguments, const char* name,
              const char* help, Command command) {
  CLI::App* added = app.add_subcommand(name, help);
  added->callback([arguments, command] {
    command(*arguments);
    if (!std::cout.flush()) throw std::runtime_error("standard output: cannot be written");
  });
  return added;
}

CLI::App* AddWithFile(CLI::App& app, const std::shared_ptr<Arguments>& arguments, const char* name,
                      const char* help, Command command) {
  CLI::App* added = Add(app, arguments, name, help, command);
  added->add_option("--file", arguments->file,
                    "Registry export that holds the settings, in place of this user's registry");
  return added;
}

}  // namespace

void AddSettingsCommand(CLI::App& app) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App* settings = app.add_subcommand("settings", "Shows and changes the settings");
  settings->require_subcommand(1);

  CLI::App* show = AddWithFile(*settings, arguments, "show",
                               "Prints settings; for named ones also what they mean", Show);
  show->add_option("NAME", arguments->names, "Settings to print; all without one");
  show->add_flag("--json", arguments->json, "Print them as JSON");

  CLI::App* set = AddWithFile(*settings, arguments, "set", "Gives a setting a value", Set);
  set->add_option("NAME", arguments->name, "The setting")->required();
  set->add_option("VALUE", arguments->value, "yes or no, a number, a name, or a text")->required();

  CLI::App* reset =
      AddWithFile(*settings, arguments, "reset", "Gives settings their defaults back", Reset);
  reset->add_option("NAME", arguments->names, "Settings to reset; all without one");

  CLI::App* exporting =
      AddWithFile(*settings, arguments, "export", "Writes a registry export", Export);
  exporting->add_option("FILE.reg", arguments->exchanged, "The file to write, or -")->required();

  CLI::App* importing = AddWithFile(*settings, arguments, "import",
                                    "Takes the settings of a registry export, all or none", Import);
  importing->add_option("FILE.reg", arguments->exchanged, "The file to read, or -")->required();

  CLI::App* document =
      Add(*settings, arguments, "document", "Prints the description of all settings",
          [](const Arguments& a) { std::cout << DescribeSettings(a.form); });
  document->add_option("FORM", arguments->form, "markdown, or admx and adml for group policies")
      ->required()
      ->check(CLI::IsMember({"markdown", "admx", "adml"}));
}

}  // namespace orvane::tool
