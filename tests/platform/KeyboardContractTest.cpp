#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/Keyboard.h"
#include "platform/win32/Processes.h"
#include "support/Utf16.h"
#endif

namespace orvane {
namespace {

TEST(MemoryKeyboard, RecordsKeys) {
  memory::Desktop desktop;
  EXPECT_FALSE(desktop.keyboard.IsDown(Keyboard::Shift));
  desktop.keyboard.down = {Keyboard::Shift};
  EXPECT_TRUE(desktop.keyboard.IsDown(Keyboard::Shift));
  desktop.keyboard.Press(Keyboard::LeftWindows, false);
  const std::vector<KeyEvent> events = {{KeyEvent::Kind::Character, 'a', false},
                                        {KeyEvent::Kind::Character, 'a', true}};
  EXPECT_TRUE(desktop.keyboard.Type(L"a", events));
  EXPECT_EQ(desktop.keyboard.typed, events);
  ASSERT_EQ(desktop.effects.All().size(), 2u);
  EXPECT_EQ(desktop.effects.All()[0].call, "keybd_event");
  EXPECT_EQ(desktop.effects.All()[1].call, "SendKeys");
}

#ifdef _WIN32
std::vector<KeyEvent> Characters(const std::wstring& text) {
  std::vector<KeyEvent> events;
  for (const char16_t unit : ToUnits(text)) {
    for (const bool up : {false, true}) {
      events.push_back({KeyEvent::Kind::Character, static_cast<std::uint16_t>(unit), up});
    }
  }
  return events;
}

void AddKey(std::vector<KeyEvent>& events, std::uint16_t key) {
  for (const bool up : {false, true}) events.push_back({KeyEvent::Kind::VirtualKey, key, up});
}

/// A window with an edit control, of this thread or a thread of its own.
class EditWindow {
 public:
  explicit EditWindow(bool ownThread) {
    if (!ownThread) {
      Create();
      return;
    }
    m_ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_thread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
    WaitForSingleObject(m_ready, INFINITE);
    SetForegroundWindow(m_window);
  }
  ~EditWindow() {
    SendMessageW(m_window, WM_CLOSE, 0, 0);
    if (!m_thread) return;
    PostThreadMessageW(GetThreadId(m_thread), WM_QUIT, 0, 0);
    WaitForSingleObject(m_thread, INFINITE);
    CloseHandle(m_thread);
    CloseHandle(m_ready);
  }

  std::wstring Text() {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(m_edit)), L'\0');
    GetWindowTextW(m_edit, text.data(), static_cast<int>(text.size()) + 1);
    return text;
  }

 private:
  void Create() {
    m_window = CreateWindowExW(0, L"#32770", L"Orvane keys", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                               300, 200, nullptr, nullptr, nullptr, nullptr);
    m_edit = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 280,
                             150, m_window, nullptr, nullptr, nullptr);
    SetForegroundWindow(m_window);
    SetFocus(m_edit);
  }

  static DWORD WINAPI Run(void* parameter) {
    auto& self = *static_cast<EditWindow*>(parameter);
    self.Create();
    SetEvent(self.m_ready);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    return 0;
  }

  HWND m_window = nullptr;
  HWND m_edit = nullptr;
  HANDLE m_ready = nullptr;
  HANDLE m_thread = nullptr;
};

class Win32KeyboardThreads : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Win32, Win32KeyboardThreads, testing::Bool());

TEST_P(Win32KeyboardThreads, TypesTextAndKeysAndReturnsWhenTheyArrived) {
  EditWindow edit(GetParam());
  win32::Keyboard keyboard;
  const std::wstring text = L"C:\\R&D \u00e4\u05d0\u4e2d + {x} \U0001F600";
  EXPECT_TRUE(keyboard.Type(text, Characters(text)));
  EXPECT_EQ(edit.Text(), text);

  std::vector<KeyEvent> events;
  AddKey(events, VK_HOME);
  events.push_back({KeyEvent::Kind::VirtualKey, VK_SHIFT, false});
  AddKey(events, VK_RIGHT);
  AddKey(events, VK_RIGHT);
  events.push_back({KeyEvent::Kind::VirtualKey, VK_SHIFT, true});
  AddKey(events, VK_DELETE);
  AddKey(events, 'X');
  EXPECT_TRUE(keyboard.Type(L"{HOME}+({RIGHT 2}){DEL}x", events));
  EXPECT_EQ(edit.Text(), L"x" + text.substr(2));
  EXPECT_FALSE(keyboard.IsDown(Keyboard::Shift));
}

TEST_P(Win32KeyboardThreads, TypesALongText) {
  EditWindow edit(GetParam());
  std::wstring text;
  for (int i = 0; i < 40; ++i) text += L"line " + std::to_wstring(i) + L";";
  EXPECT_TRUE(win32::Keyboard().Type(text, Characters(text)));
  EXPECT_EQ(edit.Text(), text);
}

TEST(Win32Keyboard, TypesIntoAnotherProgram) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION editor{};
  wchar_t line[] = L"notepad.exe";
  ASSERT_TRUE(CreateProcessW(nullptr, line, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                             &editor));
  WaitForInputIdle(editor.hProcess, 10'000);
  win32::Processes processes;
  HWND edit = nullptr;
  for (int i = 0; i < 200 && !edit; ++i, Sleep(50)) {
    edit = FindWindowExW(FindWindowW(L"Notepad", nullptr), nullptr, L"Edit", nullptr);
  }
  EXPECT_TRUE(processes.Activate(editor.dwProcessId));
  const std::wstring text = L"R&D \u00e4\u05d0 {1} + 2";
  EXPECT_TRUE(win32::Keyboard().Type(text, Characters(text)));
  wchar_t typed[100] = L"";
  SendMessageW(edit, WM_GETTEXT, 100, reinterpret_cast<LPARAM>(typed));
  EXPECT_EQ(typed, text);
  TerminateProcess(editor.hProcess, 0);
  CloseHandle(editor.hThread);
  CloseHandle(editor.hProcess);
}
#endif

}  // namespace
}  // namespace orvane
