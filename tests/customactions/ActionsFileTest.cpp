#include "customactions/ActionsFixture.h"
#include "support/ErrorOf.h"

namespace orvane {
namespace {

using Actions = clsCustomActions;

class ActionsFileTest : public test::ActionsFixture {
 protected:
  std::wstring Listed(std::int32_t type, bool ignoreDisabled) {
    std::vector<std::wstring> ids;
    const std::int32_t count = actions.LoadEx(ids, type, Path, ignoreDisabled);
    EXPECT_EQ(count, static_cast<int>(ids.size()));
    std::wstring line;
    for (const std::wstring& id : ids) line += id + L" ";
    return line;
  }
};

TEST_F(ActionsFileTest, ListsByOrder) {
  GiveFile(
      "[late]\r\nType=1\r\nOrder=70000\r\nOptions=1\r\n"
      "[general]\r\nType=2\r\nOrder=-5\r\nOptions=1\r\n"
      "[tie one]\r\nType=1\r\nOrder=3\r\nOptions=3\r\n"
      "[off]\r\nType=1\r\nOrder=1\r\nOptions=2\r\n"
      "[tie two]\r\nType=1\r\nOrder= 3 \r\nOptions=1\r\n[untyped]\r\nOptions=1\r\n");
  EXPECT_EQ(Listed(Actions::TypeWindow, true), L"tie one tie two late ");
  EXPECT_EQ(Listed(Actions::TypeWindow, false), L"off tie one tie two late ");
  EXPECT_EQ(Listed(Actions::TypeAny, false), L"general untyped off tie one tie two late ");
  EXPECT_EQ(actions.Count(Actions::TypeWindow, Path), 4);
  EXPECT_EQ(actions.Count(Actions::TypeAny, Path), 6);
}

TEST_F(ActionsFileTest, ReportsNumbersThatAreNone) {
  const std::tuple<const char*, int, int, int> rows[] = {
      // The errors of listing, counting and loading, which has the smaller range.
      {"Type=", 13, 13, 13},
      {"Type=40000", 0, 0, 6},
      {"Type=3000000000", 6, 6, 6},
      {"Type=2\r\nOptions=x", 0, 0, 13},
      {"Type=1\r\nOptions=1\r\nOrder=", 13, 0, 13},
      {"Type=1\r\nOptions=x", 13, 0, 13},
      {"Type=1\r\nExeMatch=1.5", 0, 0, 13},
  };
  for (const auto& [lines, listed, counted, loaded] : rows) {
    GiveFile(std::string("[a]\r\n") + lines);
    EXPECT_EQ(test::ErrorOf([&] { Listed(Actions::TypeWindow, true); }), listed) << lines;
    EXPECT_EQ(test::ErrorOf([&] { actions.Count(1, Path); }), counted) << lines;
    EXPECT_EQ(test::ErrorOf([&] { actions.Load(L"a", Path); }), loaded) << lines;
  }
}

TEST_F(ActionsFileTest, TakesOddFilesAsTheyAre) {
  const std::string longText(300'000, 'x');
  std::string many;
  for (int i = 0; i < 5'000; ++i) many += "[action " + std::to_string(i) + "]\r\nType=1\r\n";
  // The number of actions, and the length of the script of "a".
  const std::tuple<std::string, std::int32_t, std::size_t> rows[] = {
      {"[a]\r\nType=1\r\nActions=1234\r\n[A]\r\nType=1\r\nActions=second\r\n", 1, 4},
      {"[a]\r\nType=1\r\n[]\r\nType=1\r\n[b]\r\nType=1\r\n", 1, 0},  // an empty name ends the list
      {"[a]\r\nType=1\r\nActions=" + longText, 1, 300'000},
      {many, 5'000, 0},  // more than any buffer for section names holds
  };
  for (const auto& [text, count, scriptLength] : rows) {
    GiveFile(text);
    EXPECT_EQ(actions.Count(Actions::TypeWindow, Path), count) << text.substr(0, 40);
    actions.Load(L"a", Path);
    EXPECT_EQ(actions.m_szActions.size(), scriptLength) << text.substr(0, 40);
  }
}

TEST_F(ActionsFileTest, TouchesOnlyFilesOfAFullPath) {
  GiveFile("[a]\r\nType=1\r\nDescription=d\r\n");
  files.ChangeDirectory(L"C:\\Actions");
  actions.m_szId = L"a";
  for (const wchar_t* path : {L"", L"CustomActions.ini", L".\\CustomActions.ini",
                              L"C:CustomActions.ini", L"\\Actions\\CustomActions.ini"}) {
    EXPECT_EQ(actions.Count(Actions::TypeAny, path), 0) << path;
    actions.Save(path);
    actions.Delete(L"a", path);
  }
  EXPECT_EQ(desktop.effects.All().size(), 0u);
  EXPECT_EQ(actions.Count(Actions::TypeAny, L"C:\\Actions\\Missing.ini"), 0);
  actions.Path = Path;
  EXPECT_EQ(actions.Count(Actions::TypeAny, L""), 1);
}

TEST_F(ActionsFileTest, ReadsAnActionWithOneReadAndSavesItInItsOrder) {
  GiveFile(
      "[other]\r\nType=2\r\n[mine]\r\noptions=1\r\nForeign=1\r\nActions=[orv_item]~\r\n"
      "Caption=Save\r\nCaptionMatch=4\r\nClassMatch=2\r\nClass=Edit\r\nExe=\"x.exe\"\r\n"
      "ExeMatch=1\r\nDescription=D\xE9j\xE0\r\nOrder=-2\r\nType=1\r\n");
  EXPECT_TRUE(actions.Load(L"MINE", Path));
  EXPECT_EQ(files.reads, 1);
  actions.m_szCaption += L"\r\n[other]";
  actions.Save(Path);
  EXPECT_EQ(files.Content(Path),
            "[other]\r\nType=2\r\n[MINE]\r\nType=1\r\nOrder=-2\r\nDescription=D\xE9j\xE0\r\n"
            "Exe=x.exe\r\nExeMatch=1\r\nCaption=Save  [other]\r\nCaptionMatch=4\r\n"
            "Class=Edit\r\nClassMatch=2\r\nActions=[orv_item]~\r\nOptions=1\r\n");
  actions.Resequence({L"not used", L"other", L"mine"}, Path);
  EXPECT_EQ(Listed(Actions::TypeAny, false), L"other MINE ");
  actions.Delete(L"other", Path);
  EXPECT_EQ(Listed(Actions::TypeAny, false), L"MINE ");

  EXPECT_FALSE(actions.Load(L"missing", Path)) << "and the record is one of defaults";
  EXPECT_EQ(actions.m_lType, -1);
  EXPECT_EQ(actions.m_szActions, L"");
  EXPECT_FALSE(actions.IsOptionEnabled());
}

}  // namespace
}  // namespace orvane
