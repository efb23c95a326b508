#ifdef _WIN32
#include <gtest/gtest.h>
#include <windows.h>

#include "support/Utf16.h"
#include "win32/Keyboard.h"
#include "win32/Windows.h"

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

void AddPress(KeyText& keys, KeyEvent::Kind kind, std::uint16_t code) {
  for (const bool up : {false, true}) keys.events.push_back({kind, code, up});
}

KeyText Characters(const std::wstring& text) {
  KeyText keys{text, {}};
  for (const char16_t unit : ToUnits(text)) AddPress(keys, KeyEvent::Kind::Character, unit);
  return keys;
}

TEST_F(Win32Keyboard, TypesTextsAndKeys) {
  const std::wstring text = L"C:\\R&D \u00e4\u05d0\u4e2d + {x} \U0001F600";
  KeyText keys{L"{HOME}+({RIGHT 2}){DEL}x", {}};
  AddPress(keys, Key, VK_HOME);
  keys.events.push_back({Key, VK_SHIFT, false});
  AddPress(keys, Key, VK_RIGHT);
  AddPress(keys, Key, VK_RIGHT);
  keys.events.push_back({Key, VK_SHIFT, true});
  AddPress(keys, Key, VK_DELETE);
  AddPress(keys, Key, 'X');
  EXPECT_TRUE(keyboard.Type({Characters(text), keys}));
  EXPECT_EQ(Text(), L"") << "they are this thread's own loop's to take";
  win32::Windows().RunMessages(5'000);
  EXPECT_EQ(Text(), L"x" + text.substr(2));
  EXPECT_FALSE(keyboard.IsDown(Keyboard::Shift));
}

}  // namespace
}  // namespace orvane
#endif
