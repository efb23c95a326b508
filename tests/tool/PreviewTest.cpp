#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "RunTool.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;

const std::string Data = ORVANE_TEST_DATA "/";

/// With a directory that plays drive C: and a registry without lists and built-in commands.
class Preview : public ToolTest {
 protected:
  Preview() {
    std::filesystem::create_directories(m_driveC / "Work/Old");
    for (const char* name : {"R&D.txt", "b.TXT", "A.doc", "c.exe"})
      Put(m_driveC / "Work" / name, name);
    WriteRegistry("");
  }

  void WriteRegistry(const std::string& lines) {
    Put(m_registry,
        "Windows Registry Editor Version 5.00\n\n"
        "[HKEY_CURRENT_USER\\Software\\Tarnwick\\Orvane]\n"
        "\"ShellShowHistoryMRU\"=dword:0\n"
        "\"ShellShowQuickAccessMRU\"=dword:0\n"
        "\"ShellShowFlags\"=dword:0\n" +
            lines);
  }

  Answer Show(const Arguments& more) const {
    Arguments all = {"preview",        "--config",  Data + "every-kind.cfg", "--registry",
                     Utf8(m_registry), "--drive-c", Utf8(m_driveC)};
    all.insert(all.end(), more.begin(), more.end());
    return Run(all);
  }

  Json ShowJson(Arguments more) const {
    more.insert(more.end(), {"--format", "json"});
    return Json::parse(Show(more).output, nullptr, false);
  }

  std::filesystem::path m_driveC = m_scratch.Path() / "c";
  std::filesystem::path m_registry = m_scratch.Path() / "settings.reg";
};

TEST_F(Preview, ShowsTheMenuAsText) {
  const Answer answer = Show({"--folder", "C:\\Work", "--open", "Orvane/Browse Work"});
  EXPECT_EQ(answer.output,
            "--------\n"
            "Orvane >\n"
            "  &Work\n"
            "  My Documents\n"
            "  Pick a report...\n"
            "  &Tools >\n"
            "    &Editor\n"
            "    --------\n"
            "    Deeper >\n"
            "      Notes, \"old\"\n"
            "  --------\n"
            "  Browse Work >\n"
            "    R&&D.txt\n"
            "    b.TXT\n"
            "    A.doc\n"
            "    Old >\n"
            "      (Empty) (disabled)\n"
            "  Type a greeting\n"
            "  Copy to Backup\n"
            "  Move to Archive\n"
            "  Caf\u00e9 menu\n"
            "  --------\n"
            "  &Designer...\n"
            "--------\n");
  EXPECT_EQ(answer.errors, "");
  EXPECT_EQ(answer.status, 0);
}

#ifndef _WIN32  // whose library makes no links
TEST_F(Preview, EntersADirectoryThatLinksToItselfAsFarAsAsked) {
  std::filesystem::remove_all(m_driveC / "Work");
  std::filesystem::create_directories(m_driveC / "Work");
  std::filesystem::create_directory_symlink(".", m_driveC / "Work/loop");
  const Answer answer = Show({"--open", "Orvane/Browse Work", "--open", "Orvane/Browse Work/loop"});
  EXPECT_NE(answer.output.find("  Browse Work >\n    loop >\n      loop >\n        (Empty)"),
            std::string::npos)
      << answer.output;
}
#endif

TEST_F(Preview, ShowsTheMenuAsJson) {
  const Json json = ShowJson({"--id-first", "100", "--help-texts"});
  ASSERT_TRUE(json.is_object());
  EXPECT_GT(json["result"], 20);
  EXPECT_EQ(json["effects"], Json::array());
  EXPECT_EQ(json["menu"][0], Json({{"type", "separator"}}));
  const Json& root = json["menu"][1];
  EXPECT_EQ(root["type"], "popup");
  EXPECT_EQ(root["caption"], "Orvane");
  Json work = root["items"][0];
  EXPECT_NE(work["help"].get<std::string>().find("C:\\Work"), std::string::npos);
  work.erase("help");
  work.erase("picture");
  EXPECT_EQ(work, Json::parse(R"({"type": "command", "caption": "&Work", "id": 100,
                                  "disabled": false, "ownerDraw": true})"));
  EXPECT_EQ(root["items"][5]["items"][0]["disabled"], true) << "not opened yet";
}

TEST_F(Preview, ListsWhatLeftTheComponent) {
  WriteRegistry("\"TimingEnable\"=dword:1\n\"TimingOutput\"=\"C:\\\\Work\\\\t.log\"\n");
  const Json effects =
      ShowJson({"--folder", "C:\\Work", "--invoke", "Orvane/Tools/Editor"})["effects"];
  ASSERT_FALSE(effects.empty());
  EXPECT_EQ(effects[0]["call"], "WriteFile");
  EXPECT_EQ(effects[0]["path"], "C:\\Work\\t.log");
  EXPECT_TRUE(std::ranges::any_of(effects, [](const Json& effect) {
    return effect["call"] == "ShellExecuteEx" && effect["file"] == "C:\\Tools\\editor.exe";
  })) << effects;
  EXPECT_FALSE(std::filesystem::exists(m_driveC / "Work/t.log")) << "the drive was written to";
}

TEST_F(Preview, WritesWhatHappenedToAFileToo) {
  std::filesystem::create_directories(m_scratch.Path() / "d/Tools");
  const Answer answer = Show({"--invoke", "Orvane/Tools/Editor", "--effects", Scratch("effects"),
                              "--drive", "d=" + Scratch("d")});
  EXPECT_EQ(answer.errors, TextOf(m_scratch.Path() / "effects"));
  EXPECT_NE(answer.errors.find("{\"call\":\"ShellExecuteEx\","), std::string::npos)
      << answer.errors;
}

TEST_F(Preview, PlaysAnActionIntoTheInvokingWindowOrItsParents) {
  const std::string actions = Scratch("actions.ini");
  Put(Path(actions),
      "[a]\nType=1\nOptions=1\nDescription=d\nCaption=Frame\nCaptionMatch=2\nActions=x\n");
  Arguments windows = {"--window", "Top:Frame:C:\\a.exe"};
  for (int parents = 0; parents < 3; ++parents) {
    Arguments arguments = {"--actions", actions, "--invoke", "Orvane/Work"};
    arguments.insert(arguments.end(), windows.begin(), windows.end());
    const Json effects = ShowJson(arguments)["effects"];
    EXPECT_TRUE(std::ranges::any_of(
        effects,
        [](const Json& effect) { return effect["call"] == "SendKeys" && effect["text"] == "x"; }))
        << parents << effects;
    windows.insert(windows.begin(), {"--window", "Edit:Save:C:\\a.exe"});
  }
}

TEST_F(Preview, EndsWithOneLineAndStatus2) {
  const std::string good = Data + "every-kind.cfg";
  const std::string badRegistry = Scratch("bad.reg");
  Put(Path(badRegistry), "Windows Registry Editor Version 5.00\n\nstray\n");
  ExpectRefusal({"preview"}, "--config");
  ExpectRefusal({"preview", "--config", "/none"}, "/none");
  ExpectRefusal({"preview", "--config", Utf8(m_driveC)}, "cannot be read");
  ExpectRefusal({"preview", "--config", good, "--bogus"}, "--bogus");
  ExpectRefusal({"preview", "--config", Data + "corrupt-truncated.cfg"}, "File is corrupt!");
  ExpectRefusal({"preview", "--config", Data + "deep.json"}, "is a document");
  EXPECT_EQ(Run({"preview", "--config", "-"}, TextOf(good)).output,
            Run({"preview", "--config", good}).output);
  const struct {
    const char* option;
    std::string value;
    const char* part;
  } rows[] = {
      {"--format", "xml", "xml"},
      {"--id-last", "12x", "12x"},
      {"--drive-c", good, "no directory"},
      {"--registry", badRegistry, "bad.reg: line 3"},
#ifndef _WIN32  // where every argument is a text
      {"--select", "\xFF", "UTF-8"},
#endif
      {"--open", "Orvane/None", "Orvane/None"},
      {"--open", "Orvane/Work", "no submenu"},
      {"--invoke", "Orvane/Tools", "opens a submenu"},
      {"--invoke", "Orvane/Browse Work/(Empty)", "is disabled"},
      {"--drive", "DD=x", "LETTER=DIRECTORY"},
      {"--drive", "D=/none", "no directory"},
      {"--window", "OnlyAClass", "CLASS:CAPTION:EXE"},
  };
  for (const auto& row : rows)
    ExpectRefusal({"preview", "--config", good, row.option, row.value}, row.part);
}

}  // namespace
}  // namespace orvane::tool
