// Group policy templates: https://learn.microsoft.com/previous-versions/windows/desktop/Policy

#include "SettingsDocument.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Text = std::wstring clsOptions::*;
using Truth = bool clsOptions::*;

constexpr const char* Definitions = R"xml(<?xml version="1.0" encoding="utf-8"?>
<policyDefinitions xmlns="http://schemas.microsoft.com/GroupPolicy/2006/07/PolicyDefinitions" revision="1.0" schemaVersion="1.0">
  <policyNamespaces>
    <target prefix="orvane" namespace="Tarnwick.Policies.Orvane"/>
  </policyNamespaces>
  <resources minRequiredRevision="1.0"/>
  <supportedOn>
    <definitions>
      <definition name="Supported" displayName="$(string.Supported)"/>
    </definitions>
  </supportedOn>
)xml";

constexpr const char* Texts = R"(<?xml version="1.0" encoding="utf-8"?>
<policyDefinitionResources xmlns="http://schemas.microsoft.com/GroupPolicy/2006/07/PolicyDefinitions" revision="1.0" schemaVersion="1.0">
  <displayName>Orvane</displayName>
  <description>The settings of Orvane</description>
  <resources>
    <stringTable>
      <string id="Supported">Windows 7 and later</string>
      <string id="Orvane">Orvane</string>
)";

constexpr const char* Preference =
    " This is a preference: it is written where the user's own settings are, the user can change "
    "it, "
    "and it stays when the policy goes.";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '&')
      escaped += "&amp;";
    else if (c == '<')
      escaped += "&lt;";
    else
      escaped += c;
  }
  return escaped;
}

std::string Escaped(const wchar_t* text) {
  return Escaped(ToUtf8(text));
}

/// What is only written would do nothing.
bool HasPolicy(const Setting& setting) {
  return setting.use != Setting::Use::SaveOnly;
}

bool IsTruth(const Setting& setting) {
  return std::holds_alternative<Truth>(setting.field);
}

bool IsText(const Setting& setting) {
  return std::holds_alternative<Text>(setting.field);
}

bool IsChoice(const Setting& setting) {
  return !setting.names.empty() && !setting.isFlags;
}

const char* PageName(const Setting& setting) {
  for (const SettingsPage& page : SettingsPages())
    if (page.page == setting.page) return page.name;
  return "";
}

std::string NameId(const Setting& setting, const Setting::Name& name) {
  return ToUtf8(setting.value) + "_" + std::to_string(name.number);
}

std::string Element(const Setting& setting) {
  const std::string id = "id=\"Value\" valueName=\"" + ToUtf8(setting.value) + "\"";
  if (IsText(setting)) return "        <text " + id + " required=\"true\"/>\n";
  if (!IsChoice(setting))
    return "        <decimal " + id + " required=\"true\" minValue=\"" +
           std::to_string(setting.least) + "\" maxValue=\"" + std::to_string(setting.most) +
           "\"/>\n";
  std::string element = "        <enum " + id + " required=\"true\">\n";
  for (const Setting::Name& name : setting.names)
    element += "          <item displayName=\"$(string." + NameId(setting, name) +
               ")\"><value><decimal value=\"" + std::to_string(name.number) +
               "\"/></value></item>\n";
  return element + "        </enum>\n";
}

std::string Policy(const Setting& setting) {
  const std::string name = ToUtf8(setting.value);
  std::string key = ToUtf8(SettingsKey);
  key.pop_back();
  std::string policy = "    <policy name=\"" + name + "\" class=\"User\" displayName=\"$(string." +
                       name + ")\" explainText=\"$(string." + name + "_Help)\" key=\"" + key + "\"";
  policy += IsTruth(setting) ? " valueName=\"" + name + "\">\n"
                             : " presentation=\"$(presentation." + name + ")\">\n";
  policy += std::string("      <parentCategory ref=\"") + PageName(setting) + "\"/>\n" +
            "      <supportedOn ref=\"Supported\"/>\n";
  if (IsTruth(setting))
    policy +=
        "      <enabledValue><decimal value=\"1\"/></enabledValue>\n"
        "      <disabledValue><decimal value=\"0\"/></disabledValue>\n";
  else
    policy += "      <elements>\n" + Element(setting) + "      </elements>\n";
  return policy + "    </policy>\n";
}

std::string Strings(const Setting& setting) {
  const std::string name = ToUtf8(setting.value);
  std::string help = ToUtf8(setting.meaning);
  if (setting.isFlags) {
    for (const Setting::Name& flag : setting.names)
      help += " " + std::to_string(flag.number) + ": " + ToUtf8(flag.meaning) + ".";
  }
  std::string strings = "      <string id=\"" + name + "\">" + Escaped(setting.title) +
                        "</string>\n" + "      <string id=\"" + name + "_Help\">" +
                        Escaped(help + Preference) + "</string>\n";
  if (!IsChoice(setting)) return strings;
  for (const Setting::Name& choice : setting.names)
    strings += "      <string id=\"" + NameId(setting, choice) + "\">" + Escaped(choice.meaning) +
               "</string>\n";
  return strings;
}

std::string Presentation(const Setting& setting) {
  if (IsTruth(setting)) return {};
  const std::string start = "      <presentation id=\"" + ToUtf8(setting.value) + "\">\n        ";
  const std::string title = Escaped(setting.title);
  std::string control;
  if (IsText(setting))
    control = "<textBox refId=\"Value\"><label>" + title + "</label></textBox>";
  else if (IsChoice(setting))
    control = "<dropdownList refId=\"Value\">" + title + "</dropdownList>";
  else
    control = "<decimalTextBox refId=\"Value\">" + title + "</decimalTextBox>";
  return start + control + "\n      </presentation>\n";
}

template <class Part>
std::string ForEach(Part part) {
  std::string text;
  for (const Setting& setting : Settings())
    if (HasPolicy(setting)) text += part(setting);
  return text;
}

}  // namespace

std::string PolicyDefinitions() {
  std::string text = Definitions;
  text += "  <categories>\n    <category name=\"Orvane\" displayName=\"$(string.Orvane)\"/>\n";
  for (const SettingsPage& page : SettingsPages())
    text += std::string("    <category name=\"") + page.name + "\" displayName=\"$(string.Page_" +
            page.name + ")\"><parentCategory ref=\"Orvane\"/></category>\n";
  return text + "  </categories>\n  <policies>\n" + ForEach(Policy) +
         "  </policies>\n</policyDefinitions>\n";
}

std::string PolicyTexts() {
  std::string text = Texts;
  for (const SettingsPage& page : SettingsPages())
    text += std::string("      <string id=\"Page_") + page.name + "\">" + Escaped(page.heading) +
            "</string>\n";
  return text + ForEach(Strings) + "    </stringTable>\n    <presentationTable>\n" +
         ForEach(Presentation) +
         "    </presentationTable>\n  </resources>\n</policyDefinitionResources>\n";
}

}  // namespace orvane::tool
