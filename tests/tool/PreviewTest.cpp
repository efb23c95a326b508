#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <vector>

#include "platform/ScratchFolder.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;
using Arguments = std::vector<std::string>;

const std::string Data = ORVANE_TEST_DATA "/";

struct Answer {
  int status = -1;
  std::string output;
  std::string errors;
};

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs the companion itself, with a directory that plays drive C: and a registry without lists and
/// built-in commands.
class Preview : public testing::Test {
 protected:
  Preview() {
    std::filesystem::create_directories(m_driveC / "Work/Old");
    for (const char* name : {"R&D.txt", "b.TXT", "A.doc", "c.exe"}) {
      std::ofstream(m_driveC / "Work" / name) << name;
    }
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
    const std::filesystem::path errors = m_scratch.Path() / "errors";
    std::string command = "'" ORVANE_TOOL "'";
    for (const std::string& argument : arguments) command += " '" + argument + "'";
    Answer answer;
    FILE* output = popen((command + " 2>'" + errors.string() + "'").c_str(), "r");
    if (!output) return answer;
    std::array<char, 4096> bytes;
    for (std::size_t size; (size = fread(bytes.data(), 1, bytes.size(), output)) > 0;) {
      answer.output.append(bytes.data(), size);
    }
    answer.status = WEXITSTATUS(pclose(output));
    answer.errors = ReadAll(errors);
    return answer;
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

TEST_F(Preview, ShowsTheMenuAsJson) {
  const Json json = ShowJson({"--id-first", "100", "--help-texts"});
  ASSERT_TRUE(json.is_object());
  EXPECT_GT(json["result"], 20);
  EXPECT_EQ(json["effects"], Json::array());
  ASSERT_EQ(json["menu"].size(), 3u);
  EXPECT_EQ(json["menu"][0], Json({{"type", "separator"}}));
  const Json& root = json["menu"][1];
  EXPECT_EQ(root["type"], "popup");
  EXPECT_EQ(root["caption"], "Orvane");
  const Json& work = root["items"][0];
  EXPECT_EQ(work["type"], "command");
  EXPECT_EQ(work["caption"], "&Work");
  EXPECT_EQ(work["id"], 100);
  EXPECT_EQ(work["disabled"], false);
  EXPECT_EQ(work["ownerDraw"], true);
  EXPECT_NE(work["help"].get<std::string>().find("C:\\Work"), std::string::npos);
  const Json& browse = root["items"][5];
  EXPECT_EQ(browse["items"][0]["disabled"], true) << "not opened yet";
}

TEST_F(Preview, ListsWhatLeftTheComponent) {
  WriteRegistry("\"TimingEnable\"=dword:1\n\"TimingOutput\"=\"C:\\\\Work\\\\t.log\"\n");
  std::vector<std::string> calls;
  const Json effects =
      ShowJson({"--folder", "C:\\Work", "--invoke", "Orvane/Tools/Editor"})["effects"];
  for (const Json& effect : effects) calls.push_back(effect["call"]);
  ASSERT_FALSE(calls.empty());
  EXPECT_EQ(calls.front(), "WriteFile");
  EXPECT_EQ(effects[0]["path"], "C:\\Work\\t.log");
  const auto started = std::ranges::find(calls, "ShellExecuteEx");
  ASSERT_NE(started, calls.end());
  EXPECT_EQ(effects[static_cast<std::size_t>(started - calls.begin())]["file"],
            "C:\\Tools\\editor.exe");
  EXPECT_FALSE(std::filesystem::exists(m_driveC / "Work/t.log")) << "the drive was written to";
}

TEST_F(Preview, PlaysAnActionIntoTheInvokingWindow) {
  const std::filesystem::path actions = m_scratch.Path() / "actions.ini";
  std::ofstream(actions) << "[a]\nType=1\nOptions=1\nDescription=d\nCaption=Frame\nCaptionMatch=2\n"
                            "Actions=x\n";
  for (const std::size_t parents : {0u, 1u, 2u}) {
    Arguments arguments = {"--actions", actions.string(), "--invoke", "Orvane/Work"};
    for (std::size_t i = 0; i <= parents; ++i) {
      arguments.push_back("--window");
      arguments.push_back(i == parents ? "Top:Frame:C:\\a.exe" : "Edit:Save:C:\\a.exe");
    }
    const Json effects = ShowJson(arguments)["effects"];
    EXPECT_TRUE(std::ranges::any_of(
        effects,
        [](const Json& effect) { return effect["call"] == "SendKeys" && effect["text"] == "x"; }))
        << parents << effects;
  }
}

TEST_F(Preview, EndsWithOneLineAndStatus2) {
  const std::string good = Data + "every-kind.cfg";
  std::ofstream(m_scratch.Path() / "bad.reg") << "Windows Registry Editor Version 5.00\n\nstray\n";
  const struct {
    Arguments arguments;
    const char* part;
  } rows[] = {
      {{}, "subcommand"},
      {{"preview"}, "--config"},
      {{"preview", "--config", "/none"}, "/none"},
      {{"preview", "--config", m_driveC.string()}, "cannot be read"},
      {{"preview", "--config", good, "--bogus"}, "--bogus"},
      {{"preview", "--config", good, "--format", "xml"}, "xml"},
      {{"preview", "--config", good, "--id-last", "12x"}, "12x"},
      {{"preview", "--config", good, "--drive-c", good}, "no directory"},
      {{"preview", "--config", good, "--registry", good}, "line 1"},
      {{"preview", "--config", good, "--registry", (m_scratch.Path() / "bad.reg").string()},
       "bad.reg: line 3"},
      {{"preview", "--config", good, "--select", "\xFF"}, "UTF-8"},
      {{"preview", "--config", good, "--open", "Orvane/None"}, "Orvane/None"},
      {{"preview", "--config", good, "--open", "Orvane/Work"}, "no submenu"},
      {{"preview", "--config", good, "--window", "OnlyAClass"}, "CLASS:CAPTION:EXE"},
  };
  for (const auto& row : rows) {
    const Answer answer = Run(row.arguments);
    EXPECT_EQ(answer.status, 2) << row.part;
    EXPECT_EQ(answer.output, "") << row.part;
    EXPECT_NE(answer.errors.find(row.part), std::string::npos) << row.part << "\n" << answer.errors;
    EXPECT_EQ(std::ranges::count(answer.errors, '\n'), 1) << answer.errors;
  }
}

TEST_F(Preview, ShowsMessagesOfACorruptFile) {
  for (const char* file : {"corrupt-version.cfg", "corrupt-truncated.cfg", "corrupt-count.cfg"}) {
    const Answer answer = Run({"preview", "--config", Data + file, "--format", "json"});
    EXPECT_EQ(answer.status, 0);
    const Json json = Json::parse(answer.output, nullptr, false);
    ASSERT_EQ(json["effects"].size(), 1u) << file;
    EXPECT_EQ(json["effects"][0]["call"], "MessageBox") << file;
  }
}

}  // namespace
}  // namespace orvane::tool
