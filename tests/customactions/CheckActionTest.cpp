#include "customactions/CheckAction.h"

#include <gtest/gtest.h>

#include "memory/Desktop.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

/// The findings of a file, a line each: action, field and text; what is meant of a script in <>.
std::string Found(std::string_view text) {
  memory::Desktop desktop;
  const CodePage codePage{desktop.system.AnsiCharacters()};
  const ActionsFile file(std::as_bytes(std::span(text)), codePage);
  std::wstring lines;
  for (const ActionFinding& finding : CheckActionsFile(file)) {
    EXPECT_FALSE(finding.remedy.empty());
    lines += finding.severity == ActionFinding::Severity::Error ? L"!" : L"";
    lines += finding.action + L'|' + finding.field + L'|' + finding.text;
    const std::wstring value = file.GetProfileValue(finding.action, finding.field, L"");
    if (finding.length > 0) lines += L"<" + value.substr(finding.place, finding.length) + L">";
    lines += L"\n";
  }
  return ToUtf8(lines);
}

TEST(CheckActions, FindsWhatOneActionWillNotDo) {
  const std::string sound = "Description=d\r\nActions=x\r\n";
  const std::string window = "[a]\r\nType=1\r\nOptions=1\r\n" + sound;
  const std::string script = "[a]\r\nType=2\r\nDescription=d\r\nActions=";
  const std::pair<std::string, const char*> rows[] = {
      {"[a]\r\nType=2\r\n" + sound, ""},
      {"[a]\r\n" + sound, "a|Type|is neither 1 nor 2: the action is never played\n"},
      {window, "a||matches no window: it has no criterion\n"},
      {window + "Class=Edit\r\nClassMatch=2\r\nExe=C:\\a.exe",
       "a|ExeMatch|leaves \"C:\\a.exe\" untested\n"},
      {window + "ClassMatch=1", "a|Class|is empty, and every window passes\n"},
      {window + "ClassMatch=2", "a|Class|is empty, and only a window without one passes\n"},
      {window + "ClassMatch=3", "a|ClassMatch|3 is no mode, and every window passes\n"},
      {window + "Caption=Save;Open\r\nCaptionMatch=4",
       "a|Caption|passes for every window without a caption too\n"},
      {window + "Exe=notepad.exe\r\nExeMatch=1",
       "a|Exe|matches no program: it is compared with the full path\n"},
      {window + "Exe=C:\\\r\nExeMatch=1", ""},
      {window + "Exe=c\r\nExeMatch=1", ""},
      {window + "Exe=a.exe;D:\\b.exe\r\nExeMatch=4", ""},
      {script, "a|Actions|plays nothing\n"},
      {script + "ab[orv_pause x]c", "a|Actions|is not played: \"x\" is no pause<[orv_pause x]>\n"},
      {script + "ab[orv_item", "a|Actions|is not played: a token has no ]<[orv_item>\n"},
      {script + "~[orv_item]a[Orv_Item]{HOME}",
       "a|Actions|\"[Orv_Item]\" is no token and is typed as it stands<[Orv_Item]>\n"},
      {script + "[orv_date]ab{NO 3}c",
       "a|Actions|has keys that are not played, \"ab{NO 3}c\": No key is named {NO}<{NO 3}>\n"},
      {script + "[orv_item](b+(c)~",
       "a|Actions|has keys that are not played, \"(b+(c)~\": The text ends within a group or after "
       "a modifier<(b+(c)~>\n"},
      {script + "a{", "a|Actions|has keys that are not played, \"a{\": A { without }<{>\n"},
  };
  for (const auto& [text, findings] : rows) EXPECT_EQ(Found(text), findings) << text;
}

TEST(CheckActions, FindsWhatActionsAndSectionsDoToEachOther) {
  const std::string rest =
      "Description=d\r\nActions=x\r\nOptions=1\r\nClass=Edit\r\nClassMatch=2\r\n";
  EXPECT_EQ(Found("[late]\r\nType=1\r\nOrder=2\r\n" + rest +
                  "[early]\r\nType=1\r\nCaption=never used\r\n" + rest +
                  "[LATE]\r\nType=1\r\n[same]\r\nType=1\r\n" + rest +
                  "[off]\r\nOptions=0\r\nType=1\r\n" + rest + "[]\r\n[lost]\r\n"),
            "LATE||does not count: an action of its name, or a section without a name, stands "
            "before it\n"
            "lost||does not count: an action of its name, or a section without a name, stands "
            "before it\n"
            "early|CaptionMatch|leaves \"never used\" untested\n"
            "same||is never played: \"early\" before it takes the same windows\n"
            "late||is never played: \"early\" before it takes the same windows\n");
  EXPECT_EQ(Found("[a]\r\nType=one\r\nOrder=40000\r\nDescription=d\r\nActions=x\r\n"),
            "!a|Type|is no number: \"one\", which can keep all actions from being played\n"
            "!a|Order|is no number: \"40000\", which can keep all actions from being played\n"
            "a|Type|is neither 1 nor 2: the action is never played\n");
}

}  // namespace
}  // namespace orvane
