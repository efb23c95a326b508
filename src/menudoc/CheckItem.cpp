#include "menudoc/CheckItem.h"

#include <algorithm>
#include <cstdio>
#include <utility>
#include <variant>

#include "customactions/ActionScript.h"
#include "customactions/CheckAction.h"
#include "menudoc/SpecialFolders.h"
#include "support/FullPath.h"
#include "support/Text.h"
#include "support/Utf8.h"
#include "support/clsSprintf.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

constexpr std::int32_t Shown = Data::SelectionOptions_ShowAlways |
                               Data::SelectionOptions_ShowSingle |
                               Data::SelectionOptions_ShowMultiple;
constexpr std::int32_t TakesSeveral = Data::SelectionOptions_ShowAlways |
                                      Data::SelectionOptions_ShowMultiple |
                                      Data::SelectionOptions_Recurse;

std::string Quoted(std::wstring_view text) {
  return "\"" + ToUtf8(text) + "\"";
}

std::string CodeOf(wchar_t character) {
  char text[16];
  std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(character));
  return text;
}

bool IsControl(wchar_t character) {
  return character < L' ' || character == 0x7F;
}

/// Whether the script or template hands the token's text on.
template <class Step>
bool HasToken(std::wstring_view script) {
  ActionSteps steps;
  return ParseActionScript(script, steps).whole && std::ranges::any_of(steps, [](const auto& step) {
           return std::holds_alternative<Step>(step);
         });
}

/// The character at a place, which may be two units of UTF-16.
std::wstring_view CharacterAt(std::wstring_view text, std::size_t place) {
  const bool isPair = text[place] >= 0xD800 && text[place] < 0xDC00;
  return text.substr(place, isPair ? 2 : 1);
}

}  // namespace

void CheckItem::Warn(std::string_view field, std::string text, std::string remedy) {
  m_findings.push_back({.severity = Finding::Severity::Warning,
                        .field = std::string(field),
                        .text = std::move(text),
                        .remedy = std::move(remedy)});
}

void CheckItem::Refuse(std::string_view field, std::string text, std::string remedy) {
  m_findings.push_back(
      {.field = std::string(field), .text = std::move(text), .remedy = std::move(remedy)});
}

std::vector<Finding> CheckItem::Check(const clsOrvaneData& item) {
  m_findings.clear();
  m_item = &item;
  const ItemKind* kind = FindKind(item.m_lType);
  if (!kind)
    Warn("type",
         std::to_string(item.m_lType) + " is no type of item; the menu shows nothing for it",
         "Take the item out, or give it another type.");
  for (const ItemField& field : kind ? kind->fields : std::span<const ItemField>()) {
    if (const auto* text = std::get_if<FieldText Data::*>(&field.value))
      CheckText(field, item.**text);
  }
  if (item.IsTypeSelectionTask()) CheckTask(item);
  return std::move(m_findings);
}

void CheckItem::CheckText(const ItemField& field, std::wstring_view text) {
  CheckEncoding(field, text);
  switch (field.use) {
    case FieldUse::Caption:
      return CheckCaption(text);
    case FieldUse::Filter:
      return CheckFilter(text);
    case FieldUse::Script:
      return CheckScript(text);
    case FieldUse::Template:
      return CheckTemplate(text);
    case FieldUse::Folder:
      return CheckFolder(field, text);
    case FieldUse::Program:
      return CheckThere(field, std::wstring(text), false);
    case FieldUse::File:
      if (m_item->IsTypeFile()) CheckThere(field, std::wstring(text), false);
      break;
    case FieldUse::Affix:
      return CheckAffix(field, text);
    case FieldUse::Bits:
      break;
  }
}

void CheckItem::CheckEncoding(const ItemField& field, std::wstring_view text) {
  if (text.size() > DefinitionFile::MaxLength)
    Refuse(field.name,
           "is longer than " + std::to_string(DefinitionFile::MaxLength) + " characters",
           "Shorten it.");
  const CodePage& page = m_surroundings.codePage;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] < 128 || page.Decode(page.Encode(text.substr(i, 1))) == text.substr(i, 1)) continue;
    return Refuse(field.name,
                  "has the character " + ToUtf8(CharacterAt(text, i)) + " at " +
                      std::to_string(i + 1) + ", which the code page does not have",
                  "Use another character; for a file, its short (8.3) name.");
  }
}

void CheckItem::CheckCaption(std::wstring_view text) {
  if (text.empty() && !m_item->IsTypeRoot())
    Warn("caption", "is empty, and so is the entry in the menu", "Give the item a caption.");
  const auto control = std::ranges::find_if(text, IsControl);
  if (control != text.end())
    Warn("caption", "has a control character (" + CodeOf(*control) + ")", "Take it out.");
}

void CheckItem::CheckAffix(const ItemField& field, std::wstring_view text) {
  if (text.find(L"\\r\\n") != text.npos)
    Warn(field.name, "has \\r\\n, which is one line end too many: \\n alone is CR LF", "Use \\n.");
}

void CheckItem::CheckFilter(std::wstring_view text) {
  const std::string remedy = "Put commas between the patterns, and no blanks around them.";
  if (text.find_first_of(L";|") != text.npos)
    Warn("filter", "has a separator that is none: patterns are separated by commas", remedy);
  else if (!text.empty() && text.find_first_not_of(L", ") == text.npos)
    Warn("filter", "has no pattern, so that nothing passes it",
         "Give it a pattern, or leave it empty.");
  else if (text.starts_with(L' ') || text.ends_with(L' ') || text.find(L", ") != text.npos ||
           text.find(L" ,") != text.npos)
    Warn("filter", "has a blank beside a separator, which counts as part of the pattern", remedy);
}

void CheckItem::CheckTemplate(std::wstring_view text) {
  ActionSteps steps;
  const ScriptResult result = ParseActionScript(text, steps);
  if (!result.badNumber.empty())
    Warn("parameters", Quoted(result.badNumber) + " is no pause", "Use a number of milliseconds.");
  else if (!result.whole)
    Warn("parameters", "has a token without its ], so that no token counts", "Close the token.");
}

void CheckItem::CheckScript(std::wstring_view text) {
  for (const ActionFinding& finding : orvane::CheckScript(text))
    Warn("actions", ToUtf8(finding.text), ToUtf8(finding.remedy));
}

void CheckItem::CheckFolder(const ItemField& field, std::wstring_view text) {
  if (m_item->IsTypeFolder() && m_item->OptionsIsCSIDL()) return CheckSpecialFolder(*m_item);
  if (text.empty() && m_item->IsTypeSelectionTask()) return;
  if (!text.empty() && !IsFullPath(text))
    Warn(
        field.name, Quoted(text) + " is no full path",
        "Begin it with a drive or \\\\server\\share; a special folder is %documents% or its like.");
  CheckThere(field, std::wstring(text), true);
}

void CheckItem::CheckSpecialFolder(const clsOrvaneData& item) {
  const std::string remedy =
      "Use a special folder's name or number, such as 5 for the documents, or a path without "
      "csidl.";
  try {
    const std::int32_t number = item.FolderCSIDL();
    if (!IsSpecialFolder(number))
      Warn("location", "Windows has no special folder " + std::to_string(number), remedy);
  } catch (const Error&) {
    Refuse("location",
           Quoted(item.m_szFolder_Location) + " is no special folder's number and costs the menu",
           remedy);
  }
}

/// What lies in a folder that is not there need not be looked for: a menu may name thousands.
std::optional<std::uint32_t> CheckItem::AttributesOf(const std::wstring& path) {
  FileReader& files = *m_surroundings.files;
  const std::size_t name = path.find_last_of(L'\\');
  if (name != path.npos && IsFullPath(path.substr(0, name))) {
    const auto [folder, isNew] = m_folders.try_emplace(path.substr(0, name));
    if (isNew) folder->second = files.Attributes(folder->first, m_patience).has_value();
    if (!folder->second) return std::nullopt;
  }
  return files.Attributes(path, m_patience);
}

void CheckItem::CheckThere(const ItemField& field, const std::wstring& path, bool isFolder) {
  if (path.empty()) {
    if (field.name == "location") Warn(field.name, "is empty", "Say what to open.");
    return;
  }
  if (!m_surroundings.files || !IsFullPath(path)) return;
  const auto attributes = AttributesOf(path);
  if (!attributes) return Warn(field.name, Quoted(path) + " does not exist", "Correct the path.");
  const bool isDirectory = (*attributes & FileAttribute::Directory) != 0;
  if (isFolder && !isDirectory)
    Warn(field.name, Quoted(path) + " is no folder", "Use the path of a folder.");
  else if (!isFolder && isDirectory && m_item->IsTypeFile())
    Warn(field.name, Quoted(path) + " is a folder", "Use an item of type folder.");
}

void CheckItem::CheckTask(const clsOrvaneData& item) {
  if ((item.m_lSelection_Options & Shown) == 0)
    Warn("selectionOptions", "no selection shows the task",
         "Use one of showAlways, showSingle and showMultiple.");
  const bool makesList =
      item.SelectionOptions_IsClipboard() != 0 || !item.m_szSelection_File.empty();
  if (!makesList && item.m_szSelection_Command.empty())
    Warn("", "does nothing", "Give it a command, a file or the option clipboard.");
  if ((item.m_lSelection_Options & TakesSeveral) == 0) return;
  if (!item.m_szSelection_Command.empty() && HasToken<SelectionStep>(item.m_szSelection_Parms))
    CheckSeparation("commandSuffix", item.m_szSelection_CmdPrefix, item.m_szSelection_CmdSuffix);
  if (makesList)
    CheckSeparation("fileSuffix", item.m_szSelection_FilePrefix, item.m_szSelection_FileSuffix);
}

/// Quotes alone do not part two names: the second opens where the first closes.
void CheckItem::CheckSeparation(std::string_view field, std::wstring_view prefix,
                                std::wstring_view suffix) {
  const CodePage& page = m_surroundings.codePage;
  std::wstring between =
      clsSprintf::TreatBackSlash(suffix, page) + clsSprintf::TreatBackSlash(prefix, page);
  std::erase(between, L'"');
  if (between.empty())
    Warn(field, "leaves several names unseparated",
         field == "fileSuffix" ? "Use \\n for a line each."
                               : "Use a blank, and quotes around names.");
}

}  // namespace orvane
