#include <gtest/gtest.h>

#include <cstdlib>

#include "RunTool.h"

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

constexpr const char* Menu = R"({"items": [{"type": "file", "caption": "Plans"}]})";

TEST_F(ToolTest, SaysItsVersionAndItsSubcommands) {
  EXPECT_EQ(Run({"--version"}).output, "orvane " ORVANE_VERSION "\n");
  const Answer help = Run({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.output.find("preview"), std::string::npos) << help.output;
  ExpectRefusal({}, "subcommand");
  ExpectRefusal({"prevew"}, "did you mean \"preview\"?");
  ExpectRefusal({"menu", "wirte"}, "did you mean \"write\"?");
  ExpectRefusal({"cucumber"}, "there are menu, ");
  ExpectRefusal({"menu"}, "subcommand");
}

TEST_F(ToolTest, TakesFilesOfAnyName) {
  std::string folder = "\u00dcbung \u65e5\u672c \U0001F600";
  for (int i = 0; i < 8; ++i) {  // in the end longer than Windows' usual 260 characters
    fs::create_directories(m_scratch.Path() / Path(folder));
    const std::string json = Scratch(folder + "/men\u00fc.json");
    const std::string cfg = Scratch(folder + "/men\u00fc.cfg");
    Put(Path(json), Menu);
    EXPECT_EQ(Run({"menu", "write", json, cfg}).errors, "");
    EXPECT_NE(Run({"menu", "read", cfg}).output.find("Plans"), std::string::npos) << cfg;
    folder += "/a folder that has a rather long name";
  }
}

TEST_F(ToolTest, AFailureLeavesTheOldFileAndNothingElse) {
  const std::string json = Scratch("menu.json");
  Put(Path(json), Menu);
  fs::create_directory(m_scratch.Path() / "folder");
  ExpectRefusal({"menu", "write", json, Scratch("folder")}, "folder: cannot be written");
  ExpectRefusal({"menu", "write", json, Scratch("none/menu.cfg")}, "cannot be written");
  ExpectRefusal({"menu", "write", Scratch("folder"), Scratch("menu.cfg")}, "cannot be read");
  EXPECT_EQ(std::distance(fs::directory_iterator(m_scratch.Path()), {}), 2);
}

#ifndef _WIN32  // whose library has no terminals, makes no links and knows no modes
TEST_F(ToolTest, LongWorkShowsItsProgressOnATerminalAlone) {
  const std::string json = Scratch("menu.json"), cfg = Scratch("menu.cfg"), seen = Scratch("seen");
  std::string items = R"({"type": "separator"})";
  for (int i = 0; i < 50'000; ++i) items += R"(, {"type": "separator"})";
  Put(Path(json), R"({"items": [)" + items + "]}");
  EXPECT_EQ(Run({"menu", "write", json, cfg}).errors, "");
  const std::string command = ORVANE_TOOL " menu write " + json + " " + cfg;
  ASSERT_EQ(std::system(("script -qec '" + command + "' " + seen + " >" + seen + "2").c_str()), 0);
  const std::string shown = TextOf(seen);
  for (const char* part : {"\rreading 0 %", "\rchecking 50 %", "\rwriting 0 %"})
    EXPECT_NE(shown.find(part), shown.npos) << shown;
}

TEST_F(ToolTest, ALinkStaysOneAndAModeStays) {
  const fs::path file = m_scratch.Path() / "menu.cfg";
  const fs::path link = m_scratch.Path() / "link.cfg";
  Put(m_scratch.Path() / "menu.json", Menu);
  Put(file, "old");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("menu.cfg", link);
  EXPECT_EQ(Run({"menu", "write", Scratch("menu.json"), Utf8(link)}).status, 0);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_NE(TextOf(file), "old");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}
#endif

}  // namespace
}  // namespace orvane::tool
