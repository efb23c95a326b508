#include "customactions/ActionsFixture.h"
#include "support/Error.h"

namespace orvane {
namespace {

using Names = std::vector<std::wstring>;

class ActionsFileTest : public test::ActionsFixture {
 protected:
  std::wstring Listed(std::int32_t type, bool ignoreDisabled) {
    Names ids;
    const std::int32_t count = actions.LoadEx(ids, type, Path, ignoreDisabled);
    EXPECT_EQ(count, static_cast<int>(ids.size()));
    std::wstring line;
    for (const std::wstring& id : ids) line += id + L" ";
    return line;
  }

  template <class Call>
  std::int32_t ErrorOf(Call call) {
    try {
      call();
      return 0;
    } catch (const Error& error) {
      return error.Number();
    }
  }
};

TEST_F(ActionsFileTest, ListsByOrder) {
  GiveFile(
      "[late]\r\nType=1\r\nOrder=70000\r\nOptions=1\r\n"
      "[general]\r\nType=2\r\nOrder=-5\r\nOptions=1\r\n"
      "[tie one]\r\nType=1\r\nOrder=3\r\nOptions=3\r\n"
      "[off]\r\nType=1\r\nOrder=1\r\nOptions=2\r\n"
      "[tie two]\r\nType=1\r\nOrder= 3 \r\nOptions=1\r\n"
      "[untyped]\r\nOptions=1\r\n");
  EXPECT_EQ(Listed(clsCustomActions::TypeWindow, true), L"tie one tie two late ");
  EXPECT_EQ(Listed(clsCustomActions::TypeWindow, false), L"off tie one tie two late ");
  EXPECT_EQ(Listed(clsCustomActions::TypeAny, false), L"general untyped off tie one tie two late ");
  EXPECT_EQ(actions.Count(clsCustomActions::TypeWindow, Path), 4);
  EXPECT_EQ(actions.Count(clsCustomActions::TypeGeneral, Path), 1);
  EXPECT_EQ(actions.Count(clsCustomActions::TypeAny, Path), 6);
}

TEST_F(ActionsFileTest, ReadsOneActionWithOneRead) {
  GiveFile(
      "; a comment\r\n[Save]\r\ntype=1\r\nORDER=-7\r\nDescription=Save here\r\nExe=\"a b.exe\"\r\n"
      "ExeMatch=4\r\nClass=#32770\r\nClassMatch=2\r\nCaption=  Save \xC4 \r\nCaptionMatch=1\r\n"
      "Actions=%n[orv_item]~\r\nOptions=5\r\n");
  EXPECT_TRUE(actions.Load(L"save", Path));
  EXPECT_EQ(files.reads, 1);
  EXPECT_EQ(actions.m_szId, L"save");
  EXPECT_EQ(actions.m_lType, 1);
  EXPECT_EQ(actions.m_lOrder, -7);
  EXPECT_EQ(actions.m_szDescription, L"Save here");
  EXPECT_EQ(actions.m_szExe, L"a b.exe");
  EXPECT_EQ(actions.m_lExeMatch, 4);
  EXPECT_EQ(actions.m_szClass, L"#32770");
  EXPECT_EQ(actions.m_lClassMatch, 2);
  EXPECT_EQ(actions.m_szCaption, L"Save \u00c4");
  EXPECT_EQ(actions.m_lCaptionMatch, 1);
  EXPECT_EQ(actions.m_szActions, L"%n[orv_item]~");
  EXPECT_TRUE(actions.IsOptionEnabled());

  EXPECT_FALSE(actions.Load(L"missing", Path)) << "and the record is one of defaults";
  EXPECT_EQ(actions.m_szId, L"missing");
  EXPECT_EQ(actions.m_lType, -1);
  EXPECT_EQ(actions.m_szActions, L"");
  EXPECT_FALSE(actions.IsOptionEnabled());
}

TEST_F(ActionsFileTest, ReportsNumbersThatAreNone) {
  const struct {
    const char* line;
    int listed, counted, loaded;  // error numbers
  } rows[] = {
      {"Type=1\r\nOrder=5\r\nOptions=1", 0, 0, 0},
      {"Type=\r\n", 13, 13, 13},
      {"Type=one\r\n", 13, 13, 13},
      {"Type=40000", 0, 0, 6},
      {"Type=3000000000", 6, 6, 6},
      {"Type=1\r\nOptions=1\r\nOrder=40000", 0, 0, 6},
      {"Type=1\r\nOptions=1\r\nOrder=", 13, 0, 13},
      {"Type=1\r\nOptions=x", 13, 0, 13},
      {"Type=2\r\nOptions=x", 0, 0, 13},
      {"Type=1\r\nExeMatch=1.5", 0, 0, 13},
      {"Type=1\r\nCaptionMatch=-32769", 0, 0, 6},
  };
  for (const auto& row : rows) {
    GiveFile("[a]\r\nDescription=d\r\n" + std::string(row.line));
    Names ids;
    const auto list = [&] { actions.LoadEx(ids, clsCustomActions::TypeWindow, Path, true); };
    EXPECT_EQ(ErrorOf(list), row.listed) << row.line;
    EXPECT_EQ(ErrorOf([&] { actions.Count(1, Path); }), row.counted) << row.line;
    EXPECT_EQ(ErrorOf([&] { actions.Load(L"a", Path); }), row.loaded) << row.line;
  }
}

TEST_F(ActionsFileTest, TakesOddFilesAsTheyAre) {
  const std::string longText(300'000, 'x');
  const struct {
    std::string text;
    std::int32_t count;
    std::size_t scriptLength;  // of action "a"
  } rows[] = {
      {"", 0, 0},
      {"no section\r\nType=1\r\n", 0, 0},
      {"[a]\r\nType=1\r\nActions=1234\r\n[A]\r\nType=1\r\nActions=second\r\n", 1, 4},
      {"[a]\r\nType=1\r\nActions=one\r\nActions=second\r\n", 1, 3},
      {"[a]\r\nType=1\r\n[]\r\nType=1\r\n[b]\r\nType=1\r\n", 1, 0},  // an empty name ends the list
      {"[a]\r\nType=1\r\nActions=" + longText, 1, 300'000},
      {"[" + longText + "]\r\nType=1\r\n[a]\r\nType=1", 2, 0},
      {longText, 0, 0},
      {"[a\r\nType=1", 0, 0},
      {std::string("[a]\0\r\nType=1", 12), 1, 0},
  };
  for (const auto& row : rows) {
    GiveFile(row.text);
    EXPECT_EQ(actions.Count(clsCustomActions::TypeWindow, Path), row.count)
        << row.text.substr(0, 40);
    actions.Load(L"a", Path);
    EXPECT_EQ(actions.m_szActions.size(), row.scriptLength) << row.text.substr(0, 40);
  }
}

TEST_F(ActionsFileTest, SeesMoreSectionsThanAnyBufferHolds) {
  std::string text;
  for (int i = 0; i < 5'000; ++i) text += "[action " + std::to_string(i) + "]\r\nType=1\r\n";
  GiveFile(text);
  EXPECT_EQ(actions.Count(clsCustomActions::TypeWindow, Path), 5'000);
}

TEST_F(ActionsFileTest, FindsNothingInWhatIsNoFile) {
  GiveFile("[a]\r\nType=1\r\nDescription=d\r\n");
  desktop.files.ChangeDirectory(L"C:\\Actions");
  for (const wchar_t* path :
       {L"C:\\Actions\\Missing.ini", L"C:\\Actions", L"CustomActions.ini", L".\\CustomActions.ini",
        L"C:CustomActions.ini", L"\\Actions\\CustomActions.ini"}) {
    EXPECT_EQ(actions.Count(clsCustomActions::TypeAny, path), 0) << path;
    EXPECT_FALSE(actions.Load(L"a", path));
  }
  EXPECT_EQ(actions.Count(clsCustomActions::TypeAny, L""), 0);
  actions.Path = Path;
  EXPECT_EQ(actions.Count(clsCustomActions::TypeAny, L""), 1);
}

TEST_F(ActionsFileTest, SavesTheWholeSectionInItsOrder) {
  GiveFile("[other]\r\nType=2\r\n[mine]\r\nOptions=9\r\nForeign=1\r\n");
  actions.m_szId = L"mine";
  actions.m_lType = 1;
  actions.m_lOrder = -2;
  actions.m_szDescription = L"D\u00e9j\u00e0";
  actions.m_szExe = L"x.exe";
  actions.m_lExeMatch = 1;
  actions.m_szClass = L"Edit";
  actions.m_lClassMatch = 2;
  actions.m_szCaption = L"Save\r\n[other]";
  actions.m_lCaptionMatch = 4;
  actions.m_szActions = L"[orv_item]~";
  actions.m_lOptions = 1;
  actions.Save(Path);

  const std::string text = desktop.files.Content(Path).value();
  EXPECT_EQ(text.find("Foreign"), text.npos);
  const std::string section =
      "[mine]\r\nType=1\r\nOrder=-2\r\nDescription=D\xE9j\xE0\r\nExe=x.exe\r\nExeMatch=1\r\n"
      "Caption=Save  [other]\r\nCaptionMatch=4\r\nClass=Edit\r\nClassMatch=2\r\n"
      "Actions=[orv_item]~\r\nOptions=1\r\n";
  EXPECT_NE(text.find(section), text.npos) << text;

  clsCustomActions again(services);
  again.Path = Path;
  EXPECT_TRUE(again.Load(L"mine", L""));
  EXPECT_EQ(again.m_szActions, actions.m_szActions);
  EXPECT_EQ(again.m_lOrder, -2);

  again.Resequence({L"not used", L"other", L"mine"}, L"");
  EXPECT_EQ(Listed(clsCustomActions::TypeAny, false), L"other mine ");
  again.Delete(L"other", L"");
  EXPECT_EQ(Listed(clsCustomActions::TypeAny, false), L"mine ");
}

TEST_F(ActionsFileTest, WritesNothingWithoutAFullPath) {
  desktop.files.ChangeDirectory(L"C:\\");
  actions.m_szId = L"a";
  actions.Save(L"CustomActions.ini");
  actions.Save(L"");
  actions.Delete(L"a", L"CustomActions.ini");
  EXPECT_EQ(Effects(), L"");
}

}  // namespace
}  // namespace orvane
