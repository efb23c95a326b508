#ifdef _WIN32
#include <gtest/gtest.h>
#include <windows.h>

#include "support/Utf16.h"
#include "win32/Keyboard.h"

namespace orvane {
namespace {

/// A foreground window with an edit control that has the keyboard.
class Win32Keyboard : public testing::Test {
 protected:
  Win32Keyboard() {
    SetForegroundWindow(m_window);
    SetFocus(m_edit);
  }
  ~Win32Keyboard() override { DestroyWindow(m_window); }

  std::wstring Text() {
    wchar_t text[100];
    const int length = GetWindowTextW(m_edit, text, 100);
    return {text, text + length};
  }

  HWND m_window = CreateWindowExW(0, L"#32770", L"Orvane keys", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                                  0, 300, 200, nullptr, nullptr, nullptr, nullptr);
  HWND m_edit = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 280,
                                150, m_window, nullptr, nullptr, nullptr);
  win32::Keyboard keyboard;
};

constexpr auto Key = KeyEvent::Kind::VirtualKey;

void AddPress(std::vector<KeyEvent>& events, KeyEvent::Kind kind, std::uint16_t code) {
  for (const bool up : {false, true}) events.push_back({kind, code, up});
}

std::vector<KeyEvent> Characters(const std::wstring& text) {
  std::vector<KeyEvent> events;
  for (const char16_t unit : ToUnits(text)) AddPress(events, KeyEvent::Kind::Character, unit);
  return events;
}

TEST_F(Win32Keyboard, TypesTextAndKeysAndReturnsWhenTheyArrived) {
  const std::wstring text = L"C:\\R&D \u00e4\u05d0\u4e2d + {x} \U0001F600";
  EXPECT_TRUE(keyboard.Type(text, Characters(text)));
  EXPECT_EQ(Text(), text);

  std::vector<KeyEvent> events;
  AddPress(events, Key, VK_HOME);
  events.push_back({Key, VK_SHIFT, false});
  AddPress(events, Key, VK_RIGHT);
  AddPress(events, Key, VK_RIGHT);
  events.push_back({Key, VK_SHIFT, true});
  AddPress(events, Key, VK_DELETE);
  AddPress(events, Key, 'X');
  EXPECT_TRUE(keyboard.Type(L"{HOME}+({RIGHT 2}){DEL}x", events));
  EXPECT_EQ(Text(), L"x" + text.substr(2));
  EXPECT_FALSE(keyboard.IsDown(Keyboard::Shift));
}

LRESULT CALLBACK SwallowKey(int code, WPARAM wParam, LPARAM lParam) {
  return code == HC_ACTION ? 1 : CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(Win32Keyboard, GivesUpWhenSomebodyTakesTheKeysAwayAsAHotKeyDoes) {
  const HHOOK hook = SetWindowsHookExW(WH_KEYBOARD_LL, SwallowKey, GetModuleHandleW(nullptr), 0);
  const DWORD start = GetTickCount();
  EXPECT_FALSE(keyboard.Type(L"", Characters(std::wstring(1'000, L'x'))));
  EXPECT_LT(GetTickCount() - start, 2 * Keyboard::Patience);
  UnhookWindowsHookEx(hook);
  EXPECT_EQ(Text(), L"");
}

}  // namespace
}  // namespace orvane
#endif
