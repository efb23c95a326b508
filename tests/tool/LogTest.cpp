#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "RunTool.h"
#include "support/Scrambler.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;

const std::string Time = "03/Jun/04 @ 9:05:07";

/// A line as the scrambled log has it.
std::string Record(std::string line) {
  Scrambler(L"QWXKRTZPV").Scramble(std::as_writable_bytes(std::span(line)));
  return {std::string{8, 0, static_cast<char>(line.size()), 0} + line};
}

class Log : public ToolTest {
 protected:
  Answer Read(const std::string& content, Arguments more = {}) const {
    Put(Path(Scratch("a.dbg")), content);
    more.insert(more.begin(), {"log", "read", Scratch("a.dbg")});
    return Run(more);
  }
};

TEST_F(Log, PlainAndScrambledOnesReadTheSame) {
  const std::string lines[] = {
      "    Timing session started 06/03/2004",
      Time + " >  Outer",
      Time + "      caf\xE9=1",
      Time + "  !   *E* 0x00000035",
      Time + " >    Inner",
      Time + "        ReadConfig: 31ms\t(Timer 1)",
      Time + " <      (Exit)",
      Time + "      ReadConfig: 11ms\t(Timer 1)",
      Time + " <    (Exit)",
  };
  std::string plain, scrambled;
  for (const std::string& line : lines) {
    plain += line + "\r\n";
    scrambled += Record(line);
  }
  const Answer answer = Read(plain);
  EXPECT_EQ(answer.errors, "");
  EXPECT_NE(answer.output.find(Time + "      caf\u00e9=1\n"), std::string::npos) << answer.output;
  EXPECT_NE(answer.output.find("\n\n9 lines, 2 operations, 1 errors\n"
                               "ReadConfig: 2 times, 11 to 31 ms, 21 ms on average\n"),
            std::string::npos)
      << answer.output;
  EXPECT_EQ(Read(scrambled).output, answer.output);

  const std::string inner = Read(scrambled, {"--operation", "inner", "--json"}).output;
  ASSERT_EQ(std::ranges::count(inner, '\n'), 4) << inner;
  EXPECT_EQ(Json::parse(inner.substr(0, inner.find('\n'))),
            Json({{"time", Time}, {"kind", "entry"}, {"level", 1}, {"text", "Inner"}}));
}

TEST_F(Log, SaysWhatIsNoLog) {
  const std::string good = Time + " >  Outer\r\n";
  const std::pair<std::string, const char*> rows[] = {
      {"\x89PNG\r\n\x1A\n", "is no log"},
      {"a text\n", "is no log"},
      {std::string(1'000'000, 'x'), "is no log"},
      {good + "cut", "ends within a line, after 3 bytes"},
      {Record(Time + " >  Outer").substr(0, 20), "ends within a line"},
      {Record(Time + " >  Outer") + "text", "no record begins at byte 32"},
      {std::string("\x08\0", 2), "ends within a line"},
  };
  for (const auto& [content, part] : rows) {
    const Answer answer = Read(content);
    EXPECT_EQ(answer.status, 2) << part;
    EXPECT_NE(answer.errors.find(part), std::string::npos) << answer.errors;
  }
  EXPECT_EQ(Read("").status, 0);
  EXPECT_EQ(Run({"log", "read", "-"}, good).output, Read(good).output);
  ExpectRefusal({"log", "read", Scratch("none")}, "cannot be read");
  ExpectRefusal({"log", "read", Scratch("")}, "cannot be read");
}

TEST_F(Log, ControlCharactersDoNotReachATerminal) {
  const Answer answer = Read(Time + "     a=\x1B[2J\r\nnext\r\n");
  EXPECT_NE(answer.output.find("a=\\x1B[2J\\x0Anext\n"), std::string::npos) << answer.output;
}

TEST_F(Log, FollowsWhatIsWrittenAndALogThatIsBegunAnew) {
  const std::string file = Scratch("a.dbg");
  RunningTool tool({"log", "read", file, "--follow"});
  tool.WaitFor("waiting for the file");
  Put(Path(file), Time + " >  One\r\n" + Time + " <    (Ex");
  tool.WaitFor(">  One\n");
  std::ofstream(Path(file), std::ios::app | std::ios::binary) << "it)\r\n";
  tool.WaitFor("<    (Exit)\n");
  Put(Path(file), Time + " >  Two\r\n");
  tool.WaitFor(">  Two\n");
#ifndef _WIN32  // where it is ended without a word
  EXPECT_NE(tool.End().output.find("\n1 lines, 1 operations"), std::string::npos);
#endif
}

TEST_F(Log, AMillionLinesAreRead) {
  std::string content;
  for (int i = 0; i < 500'000; ++i) content += Time + " >  X\r\n" + Time + " <    (Exit)\r\n";
  EXPECT_NE(Read(content).output.find("1000000 lines, 500000 operations, 0 errors"),
            std::string::npos);
}

TEST_F(ToolTest, CompletionKnowsTheSubcommands) {
  for (const std::string shell : {"bash", "powershell"}) {
    const std::string script = Run({"completion", shell}).output;
    EXPECT_NE(script.find("settings import"), std::string::npos) << script;
    EXPECT_NE(script.find("--follow"), std::string::npos);
  }
}

}  // namespace
}  // namespace orvane::tool
