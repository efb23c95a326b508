#include "customactions/ActionsFixture.h"

namespace orvane {
namespace {

class MatchWindowTest : public test::ActionsFixture {
 protected:
  MatchWindowTest() {
    desktop.processes.running = {{.id = 12, .executable = L"C:\\Windows\\notepad.exe"},
                                 {.id = 16, .executable = L"C:\\Other.exe"}};
  }

  WindowHandle AddWindow(const wchar_t* className, std::wstring caption,
                         WindowHandle parent = WindowHandle::None) {
    return desktop.windows.Add(
        {.parent = parent, .className = className, .caption = std::move(caption), .process = 12});
  }

  /// An enabled window action.
  static std::string Action(const std::string& id, const std::string& lines) {
    return "[" + id + "]\r\nType=1\r\nDescription=d\r\nOptions=1\r\n" + lines + "\r\n";
  }

  /// The ID of the action that matches, or "none".
  std::wstring Matched(WindowHandle hWnd) {
    return actions.MatchWindow(hWnd, Path) == WindowHandle::None ? L"none" : actions.m_szId;
  }

  WindowHandle frame = AddWindow(L"Notepad", L"letter.txt - Notepad");
  WindowHandle dialog = AddWindow(L"#32770", L"Save As", frame);
  WindowHandle window = AddWindow(L"SHELLDLL_DefView", L"FolderView", dialog);
};

TEST_F(MatchWindowTest, TestsEveryCriterionThatIsUsed) {
  const std::pair<const char*, bool> rows[] = {
      {"Exe=C:\\windows\\NOTE\r\nExeMatch=1", true},
      {"Exe=notepad.exe\r\nExeMatch=2", false},
      {"Exe=C:\\Other.exe\r\nExeMatch=2", false},  // runs, but does not own the window
      {"Class=#32770\r\nClassMatch=2", true},
      {"Caption=save as\r\nCaptionMatch=2", false},
      {"Caption=As\r\nCaptionMatch=1", false},
      {"Caption=\r\nCaptionMatch=1", true},
      {"Caption=open, SAVE AS or close\r\nCaptionMatch=4", true},
      {"Caption=Save\r\nCaptionMatch=4", false},
      {"Class=Edit\r\nClassMatch=2\r\nCaption=Save\r\nCaptionMatch=1", false},
      {"Exe=C:\\W\r\nExeMatch=1\r\nClass=Note\r\nClassMatch=1\r\nCaption=S\r\nCaptionMatch=1",
       true},
      {"Caption=Save As\r\nClass=Notepad\r\nExe=x", false},  // none used
      {"Caption=Save As\r\nCaptionMatch=-2", false},
      {"CaptionMatch=8", true},  // no mode of its own
  };
  for (const auto& [lines, matches] : rows) {
    GiveFile(Action("a", lines));
    EXPECT_EQ(Matched(window), matches ? L"a" : L"none") << lines;
  }
}

TEST_F(MatchWindowTest, TakesTheEnabledWindowActionOfLowestOrder) {
  const std::string save = "Caption=Save\r\nCaptionMatch=1\r\n";
  GiveFile(Action("third", save + "Order=30") + Action("second", save + "Order=20") +
           "[disabled]\r\nType=1\r\nOrder=1\r\n" + save + "[general]\r\nType=2\r\nOptions=1\r\n" +
           save);
  EXPECT_EQ(actions.MatchWindow(window, Path), window);
  EXPECT_EQ(actions.m_szId, L"second");
  EXPECT_EQ(files.reads, 1);
}

TEST_F(MatchWindowTest, SurvivesWindowsThatVanishOrBendBack) {
  GiveFile(Action("a", "Caption=Gone\r\nCaptionMatch=1"));
  for (const int questions : {0, 1, 2}) {
    const WindowHandle child = AddWindow(L"Child", L"x", AddWindow(L"Frame", L"Gone"));
    desktop.windows.Look(child)->questionsLeft = questions;
    EXPECT_EQ(Matched(child), L"none") << questions;
  }
  EXPECT_EQ(Matched(WindowHandle::None), L"none");
  desktop.windows.Look(frame)->parent = window;
  EXPECT_EQ(Matched(window), L"none");
  desktop.windows.Look(frame)->parent = frame;
  EXPECT_EQ(Matched(window), L"none");
}

TEST_F(MatchWindowTest, TakesLongTexts) {
  const WindowHandle wordy = AddWindow(L"Edit", std::wstring(100'000, L'a') + L"b");
  GiveFile(Action("a", "Caption=" + std::string(1'000'000, 'a') + "c\r\nCaptionMatch=4"));
  EXPECT_EQ(Matched(wordy), L"a") << "the caption is one of as many characters as a window shows";
}

TEST_F(MatchWindowTest, EndsWellWhicheverCallFails) {
  GiveFile(Action("a", "Exe=C:\\W\r\nExeMatch=1\r\nCaption=Save\r\nCaptionMatch=1"));
  desktop.faults.FailCall(0);
  EXPECT_EQ(Matched(window), L"a");
  for (std::size_t n = desktop.faults.Calls(); n > 0; --n) {
    desktop.faults.FailCall(n);
    EXPECT_NO_THROW(Matched(window));
  }
}

}  // namespace
}  // namespace orvane
