// Scripts played into windows of the thread that shows the menu: what the keys do there is up to
// the window's own message loop.

#include <gtest/gtest.h>

#include <windows.h>

#include <atomic>
#include <fstream>
#include <functional>
#include <thread>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/DialogScript.h"
#include "host/Effects.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

enum Command : WORD { Go = 1, Rename, Semicolon, Colon, Slash, Bracket, Ask, Save };

/// A program's main window: a menu bar, accelerators, a question.
class Frame {
 public:
  Frame() {
    WNDCLASSW type{};
    type.lpfnWndProc = Procedure;
    type.lpszClassName = L"OrvaneFrame";
    RegisterClassW(&type);
    const HMENU bar = CreateMenu(), file = CreatePopupMenu();
    AppendMenuW(file, MF_STRING, Save, L"&Save");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), L"&File");
    window = CreateWindowW(L"OrvaneFrame", L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 400,
                           300, nullptr, bar, nullptr, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetForegroundWindow(window);
  }
  ~Frame() { DestroyWindow(window); }
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

  /// The program's own loop, until its log is as expected or five seconds have gone.
  void Loop(const std::function<bool()>& done) {
    const ULONGLONG end = GetTickCount64() + 5'000;
    SetTimer(window, 1, 50, nullptr);
    MSG message;
    while (!done() && GetTickCount64() < end && GetMessageW(&message, nullptr, 0, 0) > 0) {
      if (TranslateAcceleratorW(window, m_accelerators, &message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }

  HWND window;
  std::wstring log;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<Frame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self && message == WM_COMMAND) self->Log(LOWORD(wParam));
    if (self && message == WM_CHAR) self->log += static_cast<wchar_t>(wParam);
    return DefWindowProcW(window, message, wParam, lParam);
  }

  void Log(WORD command) {
    log += std::to_wstring(command) + L' ';
    if (command != Ask) return;
    const ULONGLONG asked = GetTickCount64();
    const int answer = MessageBoxW(window, L"Replace it?", L"Replace", MB_YESNO);
    log += answer == IDYES ? L"yes " : L"no ";
    patience = GetTickCount64() - asked;
  }

  static constexpr ACCEL Table[] = {
      {FVIRTKEY | FCONTROL, 'G', Go},
      {FVIRTKEY, VK_F2, Rename},
      {FVIRTKEY | FCONTROL, VK_OEM_1, Semicolon},
      {FVIRTKEY | FCONTROL | FSHIFT, VK_OEM_1, Colon},
      {FVIRTKEY | FCONTROL, VK_OEM_2, Slash},
      {FVIRTKEY | FALT, VK_OEM_4, Bracket},
      {FVIRTKEY, VK_RETURN, Ask},
  };
  HACCEL m_accelerators = CreateAcceleratorTableW(const_cast<ACCEL*>(Table), std::size(Table));

 public:
  ULONGLONG patience = 0;  // how long the question was open, in milliseconds
};

/// A window that is to be in front with the keyboard: on a busy machine news of windows that are
/// gone takes both away again.
class Front {
 public:
  explicit Front(HWND window) : m_window(window) {}

  /// Whether it has had both for a while.
  bool IsSettled() {
    const ULONGLONG now = GetTickCount64();
    if (GetForegroundWindow() == m_window && GetFocus()) return now - m_since > 150;
    if (now - m_asked > 150) {
      SetForegroundWindow(m_window);
      m_asked = now;
    }
    m_since = now;
    return false;
  }

 private:
  HWND m_window;
  ULONGLONG m_since = GetTickCount64();
  ULONGLONG m_asked = 0;
};

class Keys : public testing::Test {
 protected:
  Keys() { scene.PlainText(); }

  /// Chooses an entry that plays the script.
  void Play(const std::wstring& script, HWND window) {
    Define({1, Item::TypeCustomAction, 0, {script, L"Play"}});
    Choose(L"Play", window);
  }

  void Define(const DefinitionItem& item) {
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    WriteDefinition(scene.Path(L"Menu.cfg"), {{0, Item::TypeRoot, 0, {L"Zoo"}}, item});
  }

  void Choose(const wchar_t* caption, HWND window) {
    Front front(GetAncestor(window, GA_ROOT));
    ASSERT_TRUE(WaitFor([&] { return front.IsSettled(); }));
    RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
    click.Query();
    EXPECT_TRUE(click.Choose(caption, window)) << click.Text();
  }

  Apartment apartment;
  Scene scene;
};

void Press(WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  SendInput(1, &input, sizeof input);
}

TEST_F(Keys, ReachAFramesAcceleratorsMenuBarAndBoxes) {
  const struct {
    const wchar_t* script;
    const wchar_t* log;
    WORD held = 0;
  } rows[] = {
      {L"^g{F2}", L"1 2 "},
      {L"%fs", L"8 "},
      {L"x%fsy", L"x8 y"},
      {L"^;^:^/%[", L"3 4 5 6 "},
      {L"~y", L"7 yes "},
      {L"~n^g", L"7 no 1 "},
      {L"^G[orv_pause 50]x[orv_pause 50][orv_pause]{F2}", L"1 x2 "},
      {L"{F2}a", L"2 a", VK_SHIFT},
      {L"{F2}a", L"2 a", VK_CONTROL},
  };
  Frame frame;
  for (const auto& row : rows) {
    frame.log.clear();
    if (row.held) Press(row.held, false);
    Play(row.script, frame.window);
    frame.Loop([&] { return frame.log == row.log; });
    if (row.held) Press(row.held, true);
    EXPECT_EQ(frame.log, row.log) << row.script;
  }
}

TEST_F(Keys, BehindAPauseAreAnswersToABoxThatWaitsAsLong) {
  Frame frame;
  Play(L"~[orv_pause 300]y", frame.window);
  EXPECT_EQ(frame.log, L"") << "nothing is taken before the frame's own loop runs";
  frame.Loop([&] { return frame.log == L"7 yes "; });
  EXPECT_EQ(frame.log, L"7 yes ");
  EXPECT_GE(frame.patience, 250u);
}

/// A modal dialog that is right-clicked as soon as it has the keyboard.
struct SaveAs {
  std::function<void(HWND)> rightClick;
  std::wstring saved = L"(nothing)";

  void Show() {
    DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(301), nullptr, Procedure,
                    reinterpret_cast<LPARAM>(this));
  }

 private:
  static constexpr UINT RightClicked = WM_APP;

  static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<SaveAs*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (message == WM_INITDIALOG) {
      SetWindowLongPtrW(dialog, DWLP_USER, lParam);
      SetDlgItemTextW(dialog, 101, L"old");
      SetForegroundWindow(dialog);
      SetTimer(dialog, 1, 5'000, nullptr);
      PostMessageW(dialog, RightClicked, 0, 0);
      return TRUE;
    }
    if (message == RightClicked) self->rightClick(dialog);
    if (message == WM_TIMER) EndDialog(dialog, 0);
    if (message != WM_COMMAND || wParam != IDOK) return FALSE;
    self->saved = TextOf(dialog, 101) + L"|" + TextOf(dialog, 102);
    return EndDialog(dialog, 0);
  }
};

TEST_F(Keys, OfAWindowActionReachADialogsMnemonicsTabAndDefaultButton) {
  scene.Set(L"ShellCustomActionsFile", scene.Path(L"Actions.ini"));
  std::ofstream(std::filesystem::path(scene.Path(L"Actions.ini")))
      << "[go]\nType=1\nDescription=Go there\nOptions=1\nCaption=save as\nCaptionMatch=1\n"
      << "Actions=%n[orv_item]{TAB}done~\n";
  const std::wstring reports = scene.Path(L"Reports");
  SaveAs dialog;
  dialog.rightClick = [&](HWND window) {
    Define({1, Item::TypeFolder, 0, {reports, L"There"}});
    Choose(L"There", window);
  };
  dialog.Show();
  EXPECT_EQ(dialog.saved, reports + L"|done");

  dialog.saved = L"";
  dialog.rightClick = [&](HWND window) {
    const DialogScript user({}, L"orvane.dll");
    Define({1, Item::TypeFolder, 0, {reports + L"\\Gone", L"There"}});
    Choose(L"There", window);
    EXPECT_EQ(user.boxes, (std::vector{L"Orvane - Orvane Shell Extension: Path not found - " +
                                       reports + L"\\Gone"}));
    Click(window, IDOK);
  };
  dialog.Show();
  EXPECT_EQ(dialog.saved, L"old|") << "nothing is typed of a folder that is not there";
}

/// The focus in a child of another thread than the window in front.
TEST_F(Keys, ReachAChildOfAnotherThread) {
  Frame frame;
  std::atomic<HWND> edit = nullptr;
  std::atomic<bool> done = false;
  std::jthread other([&] {
    edit = CreateWindowW(L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 200, 30, frame.window, nullptr,
                         nullptr, nullptr);
    SetFocus(edit);
    WaitFor([&] { return done.load(); });
    DestroyWindow(edit);
  });
  EXPECT_TRUE(WaitFor([&] { return edit && GetFocus() == edit; }));
  Play(L"ab{LEFT}c[orv_pause 20]{END}d", frame.window);
  EXPECT_EQ(TextOf(edit), L"acbd") << "taken before the call returns";
  done = true;
  WaitFor([&] { return !IsWindow(edit); });
}

}  // namespace
}  // namespace orvane::host
