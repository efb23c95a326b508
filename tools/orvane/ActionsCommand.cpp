#include "ActionsCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "FindingsText.h"
#include "HostFile.h"
#include "LogPrinter.h"
#include "MenuFiles.h"
#include "customactions/CheckAction.h"
#include "customactions/WindowMatch.h"
#include "menudoc/JsonText.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::ordered_json;

struct Arguments {
  std::string file;
  bool json = false;
  MenuOptions options;
};

ActionsFile Read(const Arguments& arguments, const CodePage& codePage) {
  const std::string content = ReadHostFile(arguments.file);
  if (content.size() > ActionsFile::MaxSize)
    throw std::runtime_error(arguments.file + ": is larger than 16 MB, and no action of it counts");
  if (content.find('\0') != content.npos && !content.starts_with("\xFF\xFE"))
    throw std::runtime_error(arguments.file + ": is no text");
  return {std::as_bytes(std::span(content)), codePage};
}

const char* TypeName(std::int32_t type) {
  return type == CustomAction::TypeWindow    ? "window action"
         : type == CustomAction::TypeGeneral ? "general action"
                                             : "never played";
}

const char* ModeName(std::int32_t mode) {
  return mode == CustomAction::OptionMatchPartial    ? "begins with"
         : mode == CustomAction::OptionMatchExact    ? "is"
         : mode == CustomAction::OptionMatchAnywhere ? "occurs in"
                                                     : "is compared by an unknown mode with";
}

/// "caption begins with "Save", class is "#32770"".
std::string CriteriaText(const CustomAction& action) {
  std::string text;
  for (const Criterion& criterion : Criteria) {
    if (!IsUsed(action, criterion)) continue;
    text += (text.empty() ? "" : ", ") + ToUtf8(criterion.key) + " " +
            ModeName(action.*criterion.mode) + " \"" + Printable(action.*criterion.pattern) + '"';
  }
  return text;
}

std::string LinesOf(const CustomAction& action) {
  std::string lines = Printable(action.m_szId) + ": " + TypeName(action.m_lType) + ", order " +
                      std::to_string(action.m_lOrder) +
                      (action.IsOptionEnabled() ? "" : ", disabled") + '\n';
  for (const std::string& line :
       {Printable(action.m_szDescription), CriteriaText(action), Printable(action.m_szActions)})
    if (!line.empty()) lines += "  " + line + '\n';
  return lines;
}

/// The file's key as a JSON key: "ExeMatch" is "exeMatch".
std::string JsonKey(const wchar_t* key) {
  std::string name = ToUtf8(key);
  name.front() = static_cast<char>(name.front() - 'A' + 'a');
  return name;
}

Json JsonOf(const CustomAction& action) {
  Json json;
  json["id"] = ToUtf8(action.m_szId);
  json["type"] = action.m_lType;
  json["order"] = action.m_lOrder;
  json["enabled"] = action.IsOptionEnabled();
  json["description"] = ToUtf8(action.m_szDescription);
  for (const Criterion& criterion : Criteria) {
    json[JsonKey(criterion.key)] = ToUtf8(action.*criterion.pattern);
    json[JsonKey(criterion.modeKey)] = action.*criterion.mode;
  }
  json["actions"] = ToUtf8(action.m_szActions);
  return json;
}

void Print(MenuFiles& files, const std::string& text) {
  files.WriteText(text, StandardStream);
}

void List(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  ActionFindings findings;  // which `check` tells
  std::string lines;
  Json list = Json::array();
  for (const CustomAction& action : ReadActions(Read(arguments, files.Page()), findings)) {
    if (arguments.json)
      list.push_back(JsonOf(action));
    else
      lines += LinesOf(action);
  }
  Print(files,
        arguments.json ? list.dump(2, ' ', false, Json::error_handler_t::replace) + "\n" : lines);
}

/// The place of an action's field as that of a member of an object of objects.
Finding FindingOf(const ActionFinding& found) {
  Finding finding;
  finding.severity = found.severity == ActionFinding::Severity::Error ? Finding::Severity::Error
                                                                      : Finding::Severity::Warning;
  finding.place = MemberPlace("", ToUtf8(found.action));
  if (!found.field.empty()) finding.place = MemberPlace(finding.place, ToUtf8(found.field));
  finding.text = ToUtf8(found.text);
  finding.remedy = ToUtf8(found.remedy);
  return finding;
}

int Check(const Arguments& arguments) {
  MenuFiles files(arguments.options);
  const ActionsFile file = Read(arguments, files.Page());
  std::vector<Finding> findings;
  for (const ActionFinding& found : CheckActionsFile(file)) findings.push_back(FindingOf(found));
  if (file.Ids().empty())
    findings.push_back({.severity = Finding::Severity::Warning,
                        .text = "holds no action",
                        .remedy = "Begin each action with its name in brackets, such as [save]."});
  Print(files, arguments.json ? FindingsJson(findings) : FindingsText(findings));
  return FindingsExitCode(findings);
}

}  // namespace

void AddActionsCommand(CLI::App& app, int& exitCode) {
  CLI::App& actions = *app.add_subcommand("actions", "Looks into a file of custom actions");
  actions.require_subcommand(1);
  CLI::App& list = *actions.add_subcommand("list", "Lists actions in the order they are tried in");
  CLI::App& check = *actions.add_subcommand(
      "check", "Says all that is wrong with a file; exit code 1 for warnings, 2 for errors");
  const auto arguments = std::make_shared<Arguments>();
  for (CLI::App* command : {&list, &check}) {
    command
        ->add_option("FILE", arguments->file,
                     "The actions, such as CustomActions.ini, - for standard input")
        ->required();
    command->add_option("--code-page", arguments->options.codePage,
                        "Number of the code page of the machine that the file is for");
  }
  list.add_flag("--json", arguments->json, "As a JSON list of the actions");
  check.add_flag("--json", arguments->json, "As a JSON list of place, severity, text and remedy");
  list.callback([arguments] { List(*arguments); });
  check.callback([=, &exitCode] { exitCode = Check(*arguments); });
}

}  // namespace orvane::tool
