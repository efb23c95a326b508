#include "SettingsDocument.h"

#include "SettingText.h"
#include "memory/SystemInfo.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

constexpr SettingsPage Pages[] = {
    {Setting::Page::Menu, "Menu", "The menu"},
    {Setting::Page::Commands, "Commands", "Built-in commands"},
    {Setting::Page::Lists, "Lists", "Recently used"},
    {Setting::Page::Files, "Files", "Files"},
    {Setting::Page::Logs, "Logs", "Logs"},
    {Setting::Page::Windows, "Windows", "Windows of Orvane"},
};

constexpr const char* Introduction = R"(# Settings

<!-- Written by `orvane settings document markdown`; a test compares. -->

Each user has settings of their own: values of the registry key
`HKEY_CURRENT_USER\Software\Tarnwick\Orvane`. A missing value means the default, and a change counts
from the next right-click. `(program folder)` is the folder of `orvane.dll`.

```sh
orvane settings show
orvane settings show ShellShowFlags
orvane settings set ShellShowIcons medium
orvane settings set ShellShowFlags copy-to,move-to,command-prompt
orvane settings reset ShellShowIcons
orvane settings export settings.reg
orvane settings import settings.reg
```

`--file settings.reg` reads and changes a registry export in place of the registry, on every system.
An import is strict: a file with anything but settings, or with a value that a setting cannot have,
changes nothing. What it holds of the keys below, such as the recently-used lists, is left out and
counted.

A text is a `REG_SZ`; a number, a choice and flags are a `REG_DWORD`; so is yes (1) or no (0).

`installer/policy` has the same settings as group policy templates (`Orvane.admx`,
`en-US/Orvane.adml`). The settings lie under the product's own key and not under `Policies`, so such a
policy writes them as preferences: users can change them, and they stay when the policy goes.
)";

std::string Row(const Setting& setting, const clsOptions& defaults) {
  return "| `" + ToUtf8(setting.value) + "` | " + KindName(setting) + " | `" +
         SettingText(setting, ValueOf(defaults, setting)) + "` | " + ToUtf8(setting.meaning) +
         " |\n";
}

std::string NameRows(const Setting& setting) {
  if (setting.names.empty()) return {};
  std::string rows =
      "\n`" + ToUtf8(setting.value) + "`:\n\n| Number | Name | Meaning |\n|---|---|---|\n";
  for (const Setting::Name& name : setting.names)
    rows += "| " + std::to_string(name.number) + " | `" + ToUtf8(name.name) + "` | " +
            ToUtf8(name.meaning) + " |\n";
  return rows;
}

std::string Section(const SettingsPage& page, const clsOptions& defaults) {
  std::string rows, names;
  for (const Setting& setting : Settings()) {
    if (setting.page != page.page) continue;
    rows += Row(setting, defaults);
    names += NameRows(setting);
  }
  return std::string("\n## ") + page.heading +
         "\n\n| Setting | Kind | Default | Meaning |\n|---|---|---|---|\n" + rows + names;
}

std::string Markdown() {
  memory::SystemInfo system;
  system.programFolder = L"(program folder)";
  const clsOptions defaults = DefaultSettings(system);
  std::string text = Introduction;
  for (const SettingsPage& page : Pages) text += Section(page, defaults);
  return text;
}

}  // namespace

std::span<const SettingsPage> SettingsPages() {
  return Pages;
}

std::string DescribeSettings(const std::string& form) {
  if (form == "admx") return PolicyDefinitions();
  if (form == "adml") return PolicyTexts();
  return Markdown();
}

}  // namespace orvane::tool
