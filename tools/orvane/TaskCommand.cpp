#include "TaskCommand.h"

#include <CLI/CLI.hpp>

#include <ctime>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "LogPrinter.h"
#include "MenuFiles.h"
#include "TaskInMenu.h"
#include "WideText.h"
#include "commands/TaskText.h"
#include "memory/DataObject.h"
#include "menudoc/MenuTree.h"
#include "shellext/ModuleGlobals.h"
#include "support/FullPath.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::ordered_json;

struct Arguments {
  std::string file, task, folder;
  std::vector<std::string> names, select;
  bool dry = false;
  bool json = false;
  bool shift = false;
  bool ctrl = false;
  MenuOptions options;
};

/// What is tried, and on what.
struct Trial {
  clsOrvaneData task;
  std::string place;
  FileNames names;
};

std::wstring PathOf(const std::string& name, const std::wstring& folder) {
  std::wstring path = WideText(name);
  if (IsFullPath(path)) return path;
  if (IsFullPath(folder)) return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + path;
  throw std::runtime_error("\"" + name +
                           "\" is no full path such as C:\\Work\\a.txt; --folder says "
                           "which folder names are in");
}

FileNames Selected(const Arguments& arguments) {
  const std::wstring folder = WideText(arguments.folder);
  FileNames names;
  for (const auto* list : {&arguments.names, &arguments.select}) {
    for (const std::string& name : *list) names.Add(PathOf(name, folder));
  }
  return names;
}

Trial Prepare(const Arguments& arguments, MenuFiles& files) {
  const MenuDocument menu = files.ReadSound(arguments.file);
  const std::size_t item = FindTask(menu, arguments.task);
  Trial trial{menu.items[item].data, PlacesOf(menu)[item], Selected(arguments)};
  if (arguments.ctrl) trial.task.m_lSelection_Options |= clsOrvaneData::SelectionOptions_ShortNames;
  return trial;
}

bool IsOffered(const clsOrvaneData& task, std::size_t selected) {
  if (selected == 0) return false;
  const std::int32_t one =
      selected == 1 ? task.SelectionOptions_IsShowSingle() : task.SelectionOptions_IsShowMultiple();
  return task.SelectionOptions_IsShowAlways() != 0 || one != 0;
}

/// Today, as the script's dates will show it.
LocalTime Now() {
  const std::time_t now = std::time(nullptr);
  const std::tm* time = std::localtime(&now);
  return {.year = time->tm_year + 1900,
          .month = time->tm_mon + 1,
          .day = time->tm_mday,
          .hour = time->tm_hour,
          .minute = time->tm_min,
          .second = time->tm_sec};
}

Json HeadOf(const Trial& trial) {
  Json json;
  json["place"] = trial.place;
  json["caption"] = ToUtf8(trial.task.Caption());
  return json;
}

Json ActionJson(const Trial& trial, const ActionServices& services) {
  clsCustomActions action(services);
  action.m_szActions = trial.task.m_szAction_Actions;
  Json json = HeadOf(trial);
  json["keys"] = ToUtf8(action.BuildActionString(L"", L""));
  return json;
}

Json TaskJson(const Arguments& arguments, Trial& trial, FileReader& files,
              const ActionServices& services) {
  const clsOrvaneData& task = trial.task;
  const bool recursive = arguments.shift || task.SelectionOptions_IsRecurse() != 0;
  const std::size_t selected = trial.names.Count();
  memory::DataObject selection(std::move(trial.names));
  const TaskText made = TaskTextOf(task, selection, recursive, files, services);
  Json json = HeadOf(trial);
  json["offered"] = IsOffered(task, selected);
  json["qualified"] = task.m_szSelection_Filter.empty() || !made.fileList.empty();
  json["whole"] = made.isWhole;
  json["commandLine"] = ToUtf8(made.CommandLine(task));
  json["command"] = ToUtf8(task.m_szSelection_Command);
  json["parameters"] = task.m_szSelection_Command.empty() ? "" : ToUtf8(made.parameters);
  json["workingDir"] = ToUtf8(task.m_szSelection_WorkingDir);
  json["file"] = ToUtf8(task.m_szSelection_File);
  json["clipboard"] = task.SelectionOptions_IsClipboard() != 0;
  json["list"] = ToUtf8(made.fileList);
  return json;
}

/// A line of the answer; none for an empty text.
void PrintLine(const char* name, const std::string& text) {
  if (!text.empty()) std::cout << name << ": " << Printable(WideText(text)) << '\n';
}

/// The list as it stands in the file, but with plain line ends.
void PrintList(const std::string& list) {
  std::cout << "list:\n";
  for (std::size_t start = 0; start < list.size();) {
    const std::size_t end = std::min(list.find("\r\n", start), list.size());
    std::cout << Printable(WideText(list.substr(start, end - start))) << '\n';
    start = end + 2;
  }
}

void PrintText(const Json& json) {
  PrintLine("task", json["place"].get<std::string>() + " " + json["caption"].get<std::string>());
  if (json.contains("keys")) return PrintLine("keys", json["keys"]);
  PrintLine("command line", json["commandLine"]);
  PrintLine("working directory", json["workingDir"]);
  PrintLine("list file", json["file"]);
  if (json["clipboard"]) PrintLine("clipboard", "gets the list");
  PrintList(json["list"]);
}

/// What the menu would do otherwise than the answer lets one think.
void PrintNotes(const Json& json) {
  if (json.contains("keys")) return;
  if (!json["offered"])
    std::cerr << "orvane: the menu does not offer the task for this selection\n";
  if (!json["qualified"])
    std::cerr << "orvane: nothing passes the task's filter, so that it does nothing\n";
  if (!json["whole"])
    std::cerr << "orvane: some folders could not be read, so that the list is not complete\n";
}

Json Try(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  Trial trial = Prepare(arguments, files);
  ModuleGlobals globals(files.Desktop().Bundle());
  files.Desktop().clock.Set(Now());
  ActionServices services{globals.actionServices.files,
                          globals.actionServices.profiles,
                          globals.actionServices.windows,
                          globals.actionServices.process,
                          globals.actionServices.keyboard,
                          globals.actionServices.clock,
                          globals.actionServices.locale,
                          globals.actionServices.boxes,
                          files.Page()};
  try {
    return trial.task.IsTypeCustomAction() ? ActionJson(trial, services)
                                           : TaskJson(arguments, trial, files.Files(), services);
  } catch (const Error& error) {
    throw std::runtime_error(trial.place + ": " + ToUtf8(error.Description()));
  }
}

void Run(const Arguments& arguments) {
  if (!arguments.dry)
    throw std::runtime_error(
        "tasks run from the menu only; --dry shows what this one would do there");
  const Json json = Try(arguments);
  if (arguments.json)
    std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  else
    PrintText(json);
  if (!std::cout.flush()) throw std::runtime_error("standard output: cannot be written");
  if (!arguments.json) PrintNotes(json);
}

}  // namespace

void AddTaskCommand(CLI::App& app) {
  CLI::App& task = *app.add_subcommand("task", "Tries the actions and selection tasks of a menu");
  task.require_subcommand(1);
  CLI::App& run = *task.add_subcommand(
      "run", "With --dry: the command line and the list that a task makes of a selection");
  const auto arguments = std::make_shared<Arguments>();
  run.add_flag("--dry", arguments->dry, "Start, write and copy nothing");
  run.add_option("FILE", arguments->file, "The document or definition file, - for standard input")
      ->required();
  run.add_option("NAME", arguments->names,
                 "What is selected, as Windows paths or as names in the folder");
  run.add_option("--select", arguments->select, "The same, one at a time (repeatable)")
      ->expected(1)
      ->take_all();
  run.add_option("--task", arguments->task,
                 "Caption or place (/items/3) of the action or task; may be left out for the only "
                 "one");
  run.add_option("--folder", arguments->folder, "Folder of the names, as a Windows path");
  run.add_flag("--shift", arguments->shift, "Shift is held down: selected folders are searched");
  run.add_flag("--ctrl", arguments->ctrl, "Ctrl is held down: names are in their short form");
  run.add_flag("--json", arguments->json, "As a JSON object");
  AddMenuOptions(run, arguments->options);
  run.add_option("--drive-c", arguments->options.driveC,
                 "Directory to look for folders in, as drive C:");
  run.callback([arguments] { Run(*arguments); });
}

}  // namespace orvane::tool
