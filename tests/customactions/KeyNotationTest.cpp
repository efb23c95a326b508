#include "customactions/KeyNotation.h"

#include <gtest/gtest.h>

#include "support/Error.h"
#ifdef _WIN32
#include <windows.h>

#include "win32/Keyboard.h"
#endif

namespace orvane {
namespace {

/// The events as a line to compare: a stroked character as itself, a stroked virtual key as its
/// number in "<>", a shortcut in "'", a modifier as its letter, in lower case when it is released.
std::string Shown(const std::vector<KeyEvent>& events) {
  std::string shown;
  for (std::size_t i = 0; i < events.size(); ++i) {
    const auto [kind, code, up] = events[i];
    const bool isCharacter = kind != KeyEvent::Kind::VirtualKey;
    if (!isCharacter && code >= Keyboard::Shift && code <= Keyboard::Alt) {
      shown += (up ? "sca" : "SCA")[code - Keyboard::Shift];
      continue;
    }
    if (up || i + 1 == events.size() || events[++i] != KeyEvent{kind, code, true}) return "broken";
    if (kind == KeyEvent::Kind::Shortcut) shown += "'";
    if (isCharacter && code < 128)
      shown += static_cast<char>(code);
    else
      shown += (isCharacter ? "<u" : "<") + std::to_string(code) + ">";
  }
  return shown;
}

std::string Parsed(std::wstring_view text) {
  try {
    return Shown(ParseKeyNotation(text));
  } catch (const Error& error) {
    return "error " + std::to_string(error.Number());
  }
}

TEST(KeyNotation, StandsForTheseKeys) {
  const std::pair<std::wstring_view, std::string> rows[] = {
      {L"Hello, x=1; [b]~", "Hello, x=1; [b]<13>"},
      {L"\u00e9\u20ac", "<u233><u8364>"},
      {L"\U0001F600", "<u55357><u56832>"},  // two units, one after the other
      // modifiers
      {L"^c", "C<67>c"},
      {L"%{F4}", "A<115>a"},
      {L"^+{ESC}", "SC<27>cs"},
      {L"^(a+(b)c)", "C<65>S<66>s<67>c"},
      {L"^{+}% %,-.", "C<187>cA<32>aA<188>a-."},
      {L"^/%([\u0416)+;", "C'/cA'['<u1078>aS;s"},  // the window's layout knows the key
      {L"+()(+(a+b))c", "SsS<65><66>sc"},
      // named keys, in any case
      {L"{ENTER}{Return}{ESC}{escape}{TAB}", "<13><13><27><27><9>"},
      {L"{BACKSPACE}{BS}{BKSP}{DELETE}{DEL}{INSERT}{INS}", "<8><8><8><46><46><45><45>"},
      {L"{LEFT}{UP}{RIGHT}{DOWN}{HOME}{END}{PGUP}{PGDN}", "<37><38><39><40><36><35><33><34>"},
      {L"{BREAK}{CAPSLOCK}{CLEAR}{HELP}{NUMLOCK}", "<3><20><12><47><144>"},
      {L"{SCROLLLOCK}{PRTSC}{ADD}{SUBTRACT}", "<145><44><107><109>"},
      {L"{MULTIPLY}{DIVIDE}{F1}{f10}{F16}", "<106><111><112><121><127>"},
      // literal characters
      {L"{+}{^}{%}{~}{(}{)}{{}{}}{[}{]}", "+^%~(){}[]"},
      // repeat counts
      {L"{} 2}{LEFT 3}{a 0}", "}}<37><37><37>"},
      {L"{\U0001F600 2}", "<u55357><u56832><u55357><u56832>"},
      {L"{a  2 }", "aa"},
  };
  for (const auto& [text, keys] : rows) EXPECT_EQ(Parsed(text), keys) << keys;
}

TEST(KeyNotation, RefusesWhatIsNoNotation) {
  for (const wchar_t* text :
       {L"{", L"{ENTER", L"{}", L"a}b", L")", L"(a", L"+(a))", L"a^%", L"(a+)", L"{NOSUCH}",
        L"{F0}", L"{F17}", L"{F01}", L"{ab 2}", L"{a -1}"})
    EXPECT_EQ(Parsed(text), "error 5") << text;
  for (const wchar_t* text : {L"{LEFT x}", L"{LEFT 1 2}", L"{LEFT }"})
    EXPECT_EQ(Parsed(text), "error 13") << text;
}

TEST(KeyNotation, BoundsTheNumberOfEvents) {
  EXPECT_EQ(ParseKeyNotation(L"{x 40000}").size(), 80'000u);
  for (const wchar_t* text :
       {L"{x 1000000}", L"{LEFT 2147483647}", L"{LEFT 99999999999}", L"{x 40000}{x 40000}"})
    EXPECT_EQ(Parsed(text), "error 6") << text;
  EXPECT_EQ(Parsed(std::wstring(60'000, L'x')), "error 6");
}

TEST(KeyNotation, ReleasesWhatItPressesHoweverDeepTheGroups) {
  const std::size_t depth = 100'000;
  std::wstring text;
  for (std::size_t i = 0; i < depth; ++i) text += L"+(";
  text += L"x" + std::wstring(depth, L')');
  EXPECT_EQ(Parsed(text), "S<88>s");
  text.pop_back();
  EXPECT_EQ(Parsed(text), "error 5");
}

#ifdef _WIN32
/// Opens a window, which gets the keyboard, and answers nothing until the second event.
DWORD WINAPI OpenAndHang(void* events) {
  const auto [opened, end] = *static_cast<std::pair<HANDLE, HANDLE>*>(events);
  const HWND window = CreateWindowExW(0, L"Edit", L"Hung", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                      300, 200, nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(window);
  SetEvent(opened);
  WaitForSingleObject(end, INFINITE);
  DestroyWindow(window);
  return 0;
}

TEST(SendKeys, EndsInTimeAtAHungWindowAndLeavesNoKeyDown) {
  std::pair events(CreateEventW(nullptr, TRUE, FALSE, nullptr),
                   CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const HANDLE thread = CreateThread(nullptr, 0, OpenAndHang, &events, 0, nullptr);
  WaitForSingleObject(events.first, INFINITE);
  win32::Keyboard keyboard;
  const ULONGLONG start = GetTickCount64();
  EXPECT_FALSE(SendKeys(keyboard, L"+(abc)"));
  EXPECT_LT(GetTickCount64() - start, 10'000u);
  EXPECT_GE(GetAsyncKeyState(VK_SHIFT), 0);
  SetEvent(events.second);
  WaitForSingleObject(thread, INFINITE);
  for (HANDLE handle : {thread, events.first, events.second}) CloseHandle(handle);
}
#endif

}  // namespace
}  // namespace orvane
