#include "customactions/ActionsFixture.h"
#include "customactions/WindowMatch.h"
#include "support/Error.h"

namespace orvane {
namespace {

TEST(MatchStringTest, ComparesByMode) {
  const struct {
    const wchar_t* pattern;
    const wchar_t* value;
    bool partial, exact, anywhere;
  } rows[] = {
      {L"Save", L"Save", true, true, true},
      {L"save", L"Save As", true, false, false},
      {L"SAVE AS", L"save as", true, false, true},
      {L"notepad save as", L"Save As", false, false, true},
      {L"As", L"Save As", false, false, false},
      {L"", L"Save", true, false, false},
      {L"Save", L"", false, false, true},
      {L"", L"", true, true, true},
      {L"\u00c4rger", L"\u00e4rgern", true, false, false},
      {L"Save As", L"Save", false, false, true},
  };
  for (const auto& row : rows) {
    const MatchText pattern(row.pattern), value(row.value);
    EXPECT_EQ(MatchString(pattern, value, MatchMode::Partial), row.partial) << row.pattern;
    EXPECT_EQ(MatchString(pattern, value, MatchMode::Exact), row.exact) << row.pattern;
    EXPECT_EQ(MatchString(pattern, value, MatchMode::Anywhere), row.anywhere) << row.pattern;
    EXPECT_TRUE(MatchString(pattern, value, 3));
  }
}

class MatchWindowTest : public test::ActionsFixture {
 protected:
  MatchWindowTest() {
    desktop.processes.running = {
        {.id = 12, .executable = L"C:\\Windows\\notepad.exe", .threads = {1}},
        {.id = 16, .executable = L"C:\\Other.exe", .threads = {2}}};
    const WindowHandle frame = AddWindow(L"Notepad", L"letter.txt - Notepad");
    const WindowHandle dialog = AddWindow(L"#32770", L"Save As", frame);
    window = AddWindow(L"SHELLDLL_DefView", L"FolderView", dialog);
  }

  /// An enabled window action.
  static std::string Action(const std::string& id, const std::string& lines) {
    return "[" + id + "]\r\nType=1\r\nDescription=d\r\nOptions=1\r\n" + lines + "\r\n";
  }

  /// The ID of the action that matches, "none" or "error".
  std::wstring Matched(WindowHandle hWnd) {
    try {
      const WindowHandle found = actions.MatchWindow(hWnd, Path);
      if (found == WindowHandle::None) return L"none";
      EXPECT_EQ(found, hWnd);
      return actions.m_szId;
    } catch (const Error&) {
      return L"error";
    }
  }

  WindowHandle window;
};

TEST_F(MatchWindowTest, TestsEveryCriterionThatIsUsed) {
  const struct {
    const char* lines;
    bool matches;
  } rows[] = {
      {"Exe=C:\\windows\\NOTE\r\nExeMatch=1", true},
      {"Exe=C:\\Windows\\notepad.exe\r\nExeMatch=2", true},
      {"Exe=notepad.exe\r\nExeMatch=2", false},
      {"Exe=c:\\windows\\notepad.exe;c:\\other.exe\r\nExeMatch=4", true},
      {"Exe=C:\\Other.exe\r\nExeMatch=2", false},  // runs, but does not own the window
      {"Caption=Save As\r\nCaptionMatch=2", true},
      {"Caption=letter\r\nCaptionMatch=1", true},
      {"Caption=Open\r\nCaptionMatch=1", false},
      {"Class=#32770\r\nClassMatch=2", true},
      {"Class=Notepad\r\nClassMatch=2\r\nCaption=Save\r\nCaptionMatch=1", true},
      {"Class=Notepad\r\nClassMatch=2\r\nCaption=Open\r\nCaptionMatch=1", false},
      {"Class=Edit\r\nClassMatch=2\r\nCaption=Save\r\nCaptionMatch=1", false},
      {"Exe=C:\\W\r\nExeMatch=1\r\nClass=Note\r\nClassMatch=1\r\nCaption=S\r\nCaptionMatch=1",
       true},
      {"Exe=C:\\X\r\nExeMatch=1\r\nClass=Note\r\nClassMatch=1", false},
      {"Caption=Save As\r\nClass=Notepad\r\nExe=x", false},  // none used
      {"Caption=Save As\r\nCaptionMatch=-2", false},
      {"CaptionMatch=8", true},               // no mode of its own
      {"Options=2\r\nCaptionMatch=8", true},  // the first of two keys holds
  };
  for (const auto& row : rows) {
    GiveFile(Action("a", row.lines));
    EXPECT_EQ(Matched(window), row.matches ? L"a" : L"none") << row.lines;
  }
}

TEST_F(MatchWindowTest, PlaysTheEnabledWindowActionOfLowestOrder) {
  const std::string save = "Caption=Save\r\nCaptionMatch=1\r\n";
  GiveFile(Action("third", save + "Order=30") + Action("second", save + "Order=20") +
           "[disabled]\r\nType=1\r\nOrder=1\r\n" + save + "[general]\r\nType=2\r\nOptions=1\r\n" +
           save);
  EXPECT_EQ(Matched(window), L"second");
  EXPECT_EQ(actions.m_lOrder, 20) << "and the object holds the action";
  EXPECT_EQ(files.reads, 1);
}

TEST_F(MatchWindowTest, SurvivesWindowsThatVanish) {
  GiveFile(Action("a", "Caption=Save\r\nCaptionMatch=1"));
  for (int questions = 0; questions < 3; ++questions) {
    const WindowHandle frame = AddWindow(L"Frame", L"Save");
    const WindowHandle child = AddWindow(L"Child", L"x", frame);
    desktop.windows.Look(child)->questionsLeft = questions;
    EXPECT_EQ(Matched(child), L"none") << questions;
  }
  EXPECT_EQ(Matched(WindowHandle::None), L"none");
  EXPECT_EQ(Matched(ToHandle<WindowHandle>(0x7777)), L"none");
}

TEST_F(MatchWindowTest, EndsAChainThatBendsBack) {
  GiveFile(Action("a", "Caption=Nowhere\r\nCaptionMatch=2"));
  const WindowHandle one = AddWindow(L"One", L"1");
  const WindowHandle two = AddWindow(L"Two", L"2", one);
  desktop.windows.Look(one)->parent = two;
  EXPECT_EQ(Matched(one), L"none");
  desktop.windows.Look(one)->parent = one;
  EXPECT_EQ(Matched(one), L"none");
}

TEST_F(MatchWindowTest, TakesLongTexts) {
  const WindowHandle wordy = AddWindow(L"Edit", std::wstring(100'000, L'a') + L"b");
  GiveFile(Action("a", "Caption=" + std::string(1'000'000, 'a') + "c\r\nCaptionMatch=4"));
  EXPECT_EQ(Matched(wordy), L"a") << "the caption is one of as many characters as a window shows";
  GiveFile(Action("a", "Caption=" + std::string(1'000'000, 'b') + "\r\nCaptionMatch=4"));
  EXPECT_EQ(Matched(wordy), L"none");
}

TEST_F(MatchWindowTest, ReportsABadAction) {
  GiveFile(Action("a", "CaptionMatch=x") + Action("b", "CaptionMatch=8"));
  EXPECT_EQ(Matched(window), L"error");
  GiveFile(Action("a", "CaptionMatch=40000"));
  EXPECT_EQ(Matched(window), L"error");
}

TEST_F(MatchWindowTest, EndsWellWhicheverCallFails) {
  GiveFile(Action("a", "Exe=C:\\W\r\nExeMatch=1\r\nCaption=Save\r\nCaptionMatch=1"));
  desktop.faults.FailCall(0);
  EXPECT_EQ(Matched(window), L"a");
  const std::size_t calls = desktop.faults.Calls();
  EXPECT_GT(calls, 8u);
  for (std::size_t n = 1; n <= calls; ++n) {
    desktop.faults.FailCall(n);
    const std::wstring matched = Matched(window);
    EXPECT_TRUE(matched == L"a" || matched == L"none");
  }
}

}  // namespace
}  // namespace orvane
