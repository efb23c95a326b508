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

/// Takes every key away from everybody, as a hot key does.
DWORD WINAPI SwallowKeys(void* ready) {
  const HOOKPROC swallow = [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
    return code == HC_ACTION ? 1 : CallNextHookEx(nullptr, code, wParam, lParam);
  };
  const HHOOK hook = SetWindowsHookExW(WH_KEYBOARD_LL, swallow, GetModuleHandleW(nullptr), 0);
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
  SetEvent(ready);
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  UnhookWindowsHookEx(hook);
  return 0;
}

TEST(Win32Keyboard, GivesUpWhenNobodyTakesTheKeys) {
  EditWindow edit(true);
  const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const HANDLE thread = CreateThread(nullptr, 0, SwallowKeys, ready, 0, nullptr);
  WaitForSingleObject(ready, INFINITE);
  const DWORD start = GetTickCount();
  EXPECT_FALSE(win32::Keyboard().Type(L"", Characters(std::wstring(1'000, L'x'))));
  EXPECT_LT(GetTickCount() - start, 2 * Keyboard::Patience);
  PostThreadMessageW(GetThreadId(thread), WM_QUIT, 0, 0);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
  CloseHandle(ready);
}
#endif

}  // namespace
}  // namespace orvane
