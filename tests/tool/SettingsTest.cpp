#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "RunTool.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;

const std::string Header = "Windows Registry Editor Version 5.00\r\n";
const std::string Key = "[HKEY_CURRENT_USER\\Software\\Tarnwick\\Orvane]\r\n";

class Settings : public ToolTest {
 protected:
  Answer Do(Arguments arguments, bool withFile = true) const {
    arguments.insert(arguments.begin(), "settings");
    if (withFile) arguments.insert(arguments.end(), {"--file", m_file});
    return Run(arguments);
  }

  std::string Value(const std::string& name) const {
    return Json::parse(Do({"show", name, "--json"}).output)[0]["value"];
  }

  const std::string m_file = Scratch("settings.reg");
};

TEST_F(Settings, AreSetShownAndReset) {
  const std::string shown = Do({"show"}).output;
  EXPECT_NE(shown.find("ShellShowIcons = maximum  (default)\n"), std::string::npos) << shown;
  const struct {
    const char *name, *given, *value;
  } rows[] = {
      {"ShellEnable", "off", "no"},
      {"shellenable", "1", "yes"},
      {"ShellShowIcons", "medium", "medium"},
      {"ShellShowIcons", "0", "none"},
      {"ShellShowFlags", "copy-to,in-submenu", "in-submenu,copy-to"},
      {"ShellShowFlags", "272", "command-prompt,256"},
      {"ShellMaxMenuText", "80", "80"},
      {"ShellConfigFile", "D:\\\"Me n\u00fc\" \u65e5\\\U0001F600.cfg", nullptr},
      {"ShellConfigFile", "", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Do({"set", row.name, row.given}).errors, "");
    EXPECT_EQ(Value(row.name), row.value ? row.value : row.given) << row.name;
  }
  EXPECT_EQ(Do({"reset", "ShellShowIcons"}).errors, "");
  EXPECT_EQ(Value("ShellShowIcons"), "maximum");
  EXPECT_EQ(Value("ShellMaxMenuText"), "80");
  EXPECT_EQ(Do({"reset"}).errors, "");
  EXPECT_EQ(Do({"show"}).output, shown);
}

TEST_F(Settings, RefusesWhatASettingCannotBe) {
  const std::pair<Arguments, const char*> rows[] = {
      {{"set", "ShellEnabled", "1"}, "is no setting"},
      {{"set", "ShellEnable", "2"}, "ShellEnable takes yes or no"},
      {{"set", "ShellShowIcons", "some"}, "one of none, minimum, medium, maximum, or a number"},
      {{"set", "ShellShowIcons", "4"}, "a number from 0 to 3"},
      {{"set", "ShellShowFlags", "copy-to,fly"}, "names joined by commas: in-submenu, "},
      {{"set", "ShelllMaxHistoryMRU", "99999999999"}, "ShelllMaxHistoryMRU takes a number"},
      {{"show", "\u65e5"}, "is no setting"},
      {{"show", "--file", Scratch("")}, "cannot be read"},
      {{"set", "ShellEnable", "1", "--file", Scratch("none/x.reg")}, "cannot be written"},
#ifndef _WIN32
      {{"show"}, "--file"},
#endif
  };
  for (auto [arguments, part] : rows) {
    const bool withFile =
        arguments.size() > 1 && std::ranges::find(arguments, "--file") == arguments.end();
    arguments.insert(arguments.begin(), "settings");
    if (withFile) arguments.insert(arguments.end(), {"--file", m_file});
    ExpectRefusal(arguments, part);
  }
  EXPECT_FALSE(std::filesystem::exists(Path(m_file)));
}

TEST_F(Settings, AnImportIsAllOrNothing) {
  const std::string file = Scratch("import.reg");
  const auto import = [&](const std::string& text) {
    Put(Path(file), text);
    return Do({"import", file});
  };
  EXPECT_EQ(
      import(Header + Key + "\"ShellEnable\"=dword:0\r\n\"ShellConfigFile\"=\"E:\\\\m.cfg\"\r\n")
          .errors,
      "");
  const std::string before = TextOf(Path(m_file));
  const std::string good = Header + Key + "\"ShellEnable\"=dword:1\r\n";
  const std::pair<std::string, const char*> rows[] = {
      {"", "line 1: "},
      {"REGEDIT4\r\n" + Key, "line 1: "},
      {good + "stray\r\n", "line 4: "},
      {good + "\"ShellColour\"=dword:1\r\n", "\"ShellColour\" is no setting"},
      {good + "\"ShellConfigFile\"=dword:1\r\n",
       "ShellConfigFile takes another kind of value: text"},
      {good + "\"ShellShowIcons\"=\"3\"\r\n", "another kind of value: choice"},
      {good + "\"ShellShowIcons\"=dword:9\r\n", "a number from 0 to 3"},
      {good + "[HKEY_CURRENT_USER\\Software\\Tarnwick]\r\n", "is not the settings' key"},
      {good + "[-HKEY_LOCAL_MACHINE\\Software\\Tarnwick\\Orvane]\r\n", "is not the settings' key"},
      {std::string("\xFF\xFE") + "W", "line 1: "},
      {"\xFF\xFF\xFF", "neither UTF-8 nor UTF-16"},
  };
  for (const auto& [text, part] : rows) {
    const Answer answer = import(text);
    EXPECT_EQ(answer.status, 2) << text;
    EXPECT_NE(answer.errors.find(part), std::string::npos) << answer.errors;
    EXPECT_EQ(TextOf(Path(m_file)), before) << text;
  }
  const Answer lists =
      import(good +
             "\"ShellConfigFile\"=-\r\n"
             "[HKEY_CURRENT_USER\\Software\\Tarnwick\\Orvane\\ContextMenu\\CopyTo]\r\n"
             "\"MruFileCount\"=dword:1\r\n\"Mru1\"=\"C:\\\\x\"\r\n");
  EXPECT_EQ(lists.errors, "orvane: 2 values of keys below were left out\n");
  EXPECT_EQ(Value("ShellEnable"), "yes");
  EXPECT_NE(Value("ShellConfigFile"), "E:\\m.cfg");
}

TEST_F(Settings, AnExportHoldsWhatIsSetAndTheRestOfAFileStays) {
  Put(Path(m_file),
      Header + "[HKEY_CURRENT_USER\\Software\\Other]\r\n\"a]\\\"\"=hex(7):61,00,00,00\r\n" + Key +
          "\"ShellEnable\"=dword:00000000\r\n");
  EXPECT_EQ(Do({"set", "ShellMaxMenuText", "7"}).errors, "");
  EXPECT_EQ(Do({"export", Scratch("out.reg")}).errors, "");
  const Answer all = Do({"export", "-"});
  EXPECT_EQ(all.output, TextOf(m_scratch.Path() / "out.reg"));
  // The editor's own form: UTF-16LE behind its mark.
  std::string text;
  for (std::size_t i = 2; i < all.output.size(); i += 2) text += all.output[i];
  EXPECT_EQ(text, Header + "\r\n" + Key +
                      "\"ShellEnable\"=dword:00000000\r\n\"ShellMaxMenuText\"=dword:00000007\r\n");
  std::string file;
  const std::string content = TextOf(Path(m_file));
  for (std::size_t i = 2; i < content.size(); i += 2) file += content[i];
  EXPECT_EQ(
      file,
      Header + "\r\n[HKEY_CURRENT_USER\\Software\\Other]\r\n\"a]\\\"\"=hex(7):61,00,00,00\r\n\r\n" +
          Key + "\"ShellEnable\"=dword:00000000\r\n\"ShellMaxMenuText\"=dword:00000007\r\n");
}

#ifdef _WIN32
TEST_F(Settings, OfTheUserAreInTheRegistry) {
  const std::string before = Do({"export", "-"}, false).output;
  const std::string file = Scratch("before.reg");
  Put(Path(file), before);
  EXPECT_EQ(Do({"set", "ShellMaxMenuText", "77"}, false).errors, "");
  const std::string one = Do({"show", "ShellMaxMenuText", "--json"}, false).output;
  EXPECT_EQ(Json::parse(one)[0]["value"], "77");
  EXPECT_EQ(Do({"reset"}, false).errors, "");
  EXPECT_EQ(
      Do({"show"}, false).output.find("ShellMaxMenuText = 64  (default)") == std::string::npos,
      false);
  EXPECT_EQ(Do({"import", file}, false).errors, "");
  EXPECT_EQ(Do({"export", "-"}, false).output, before);
}
#endif

TEST_F(Settings, DocumentsAreTheOnesOfTheTable) {
  const std::string root = ORVANE_TEST_DATA "/../../";
  const std::pair<const char*, const char*> rows[] = {
      {"markdown", "docs/settings.md"},
      {"admx", "installer/policy/Orvane.admx"},
      {"adml", "installer/policy/en-US/Orvane.adml"},
  };
  for (const auto& [form, file] : rows) {
    const Answer answer = Do({"document", form}, false);
    EXPECT_TRUE(answer.output == TextOf(root + file))
        << file << " is not what \"orvane settings document " << form << "\" prints";
  }
}

}  // namespace
}  // namespace orvane::tool
