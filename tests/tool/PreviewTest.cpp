#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <vector>

#include "menudata/World.h"
#include "platform/ScratchFolder.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;
using Arguments = std::vector<std::string>;

const std::string Data = ORVANE_TEST_DATA "/";

struct Answer {
  int status;
  std::string output, errors;
};

/// Runs the companion itself, with a directory that plays drive C: and a registry without lists and
/// built-in commands.
class Preview : public testing::Test {
 protected:
  Preview() {
    std::filesystem::create_directories(m_driveC / "Work/Old");
    for (const char* name : {"R&D.txt", "b.TXT", "A.doc", "c.exe"})
      std::ofstream(m_driveC / "Work" / name) << name;
    WriteRegistry("");
  }

  void WriteRegistry(const std::string& lines) {
    std::ofstream(m_registry) << "Windows Registry Editor Version 5.00\n\n"
                                 "[HKEY_CURRENT_USER\\Software\\Tarnwick\\Orvane]\n"
                                 "\"ShellShowHistoryMRU\"=dword:0\n"
                                 "\"ShellShowQuickAccessMRU\"=dword:0\n"
                                 "\"ShellShowFlags\"=dword:0\n"
                              << lines;
  }

  Answer Run(const Arguments& arguments) const {
    const std::string output = (m_scratch.Path() / "output").string();
    const std::string errors = (m_scratch.Path() / "errors").string();
    std::string command = "'" ORVANE_TOOL "'";
    for (const std::string& argument : arguments) command += " '" + argument + "'";
    command += " >'" + output + "' 2>'" + errors + "'";
    const int status = WEXITSTATUS(std::system(command.c_str()));
    return {status, test::TextOfFile(output), test::TextOfFile(errors)};
  }

  Answer Show(const Arguments& more) const {
    Arguments all = {"preview",           "--config",  Data + "every-kind.cfg", "--registry",
                     m_registry.string(), "--drive-c", m_driveC.string()};
    all.insert(all.end(), more.begin(), more.end());
    return Run(all);
  }

  Json ShowJson(Arguments more) const {
    more.insert(more.end(), {"--format", "json"});
    return Json::parse(Show(more).output, nullptr, false);
  }

  ScratchFolder m_scratch;
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

TEST_F(Preview, EntersADirectoryThatLinksToItselfAsFarAsAsked) {
  std::filesystem::remove_all(m_driveC / "Work");
  std::filesystem::create_directories(m_driveC / "Work");
  std::filesystem::create_directory_symlink(".", m_driveC / "Work/loop");
  const Answer answer = Show({"--open", "Orvane/Browse Work", "--open", "Orvane/Browse Work/loop"});
  EXPECT_NE(answer.output.find("  Browse Work >\n    loop >\n      loop >\n        (Empty)"),
            std::string::npos)
      << answer.output;
}

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
  const Answer corrupt =
      Run({"preview", "--config", Data + "corrupt-truncated.cfg", "--format", "json"});
  EXPECT_EQ(Json::parse(corrupt.output)["effects"][0],
            Json::parse(R"({"call": "MessageBox", "title": "Orvane - Orvane Shell Extension",
                            "text": "File is corrupt!", "icon": "stop", "buttons": "ok"})"));
  EXPECT_FALSE(std::filesystem::exists(m_driveC / "Work/t.log")) << "the drive was written to";
}

TEST_F(Preview, PlaysAnActionIntoTheInvokingWindowOrItsParents) {
  const std::string actions = (m_scratch.Path() / "actions.ini").string();
  std::ofstream(actions) << "[a]\nType=1\nOptions=1\nDescription=d\nCaption=Frame\nCaptionMatch=2\n"
                            "Actions=x\n";
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
  const std::string badRegistry = (m_scratch.Path() / "bad.reg").string();
  std::ofstream(badRegistry) << "Windows Registry Editor Version 5.00\n\nstray\n";
  const auto refuses = [&](const Arguments& arguments, const std::string& part) {
    const Answer answer = Run(arguments);
    EXPECT_EQ(answer.status, 2) << part;
    EXPECT_EQ(answer.output, "") << part;
    EXPECT_NE(answer.errors.find(part), std::string::npos) << part << "\n" << answer.errors;
    EXPECT_EQ(std::ranges::count(answer.errors, '\n'), 1) << answer.errors;
  };
  refuses({}, "subcommand");
  refuses({"preview"}, "--config");
  refuses({"preview", "--config", "/none"}, "/none");
  refuses({"preview", "--config", m_driveC.string()}, "cannot be read");
  refuses({"preview", "--config", good, "--bogus"}, "--bogus");
  const struct {
    const char* option;
    std::string value;
    const char* part;
  } rows[] = {
      {"--format", "xml", "xml"},
      {"--id-last", "12x", "12x"},
      {"--drive-c", good, "no directory"},
      {"--registry", badRegistry, "bad.reg: line 3"},
      {"--select", "\xFF", "UTF-8"},
      {"--open", "Orvane/None", "Orvane/None"},
      {"--open", "Orvane/Work", "no submenu"},
      {"--window", "OnlyAClass", "CLASS:CAPTION:EXE"},
  };
  for (const auto& row : rows)
    refuses({"preview", "--config", good, row.option, row.value}, row.part);
}

}  // namespace
}  // namespace orvane::tool
