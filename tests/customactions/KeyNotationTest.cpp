#include "customactions/KeyNotation.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/memory/Keyboard.h"
#include "support/Error.h"

namespace orvane {
namespace {

/// The events as a line to compare: a stroked character as itself, a stroked virtual key as its
/// number in "<>", a modifier as its letter, in lower case when it is released.
std::string Shown(const std::vector<KeyEvent>& events) {
  const std::map<std::uint16_t, std::string> modifiers = {{16, "Ss"}, {17, "Cc"}, {18, "Aa"}};
  std::string shown;
  for (std::size_t i = 0; i < events.size(); ++i) {
    const KeyEvent& event = events[i];
    const auto modifier = modifiers.find(event.code);
    if (event.kind == KeyEvent::Kind::VirtualKey && modifier != modifiers.end()) {
      shown += modifier->second[event.up];
      continue;
    }
    const KeyEvent released{event.kind, event.code, true};
    if (event.up || i + 1 == events.size() || events[++i] != released) return shown + " broken";
    const bool plain = event.kind == KeyEvent::Kind::Character && event.code < 128;
    const char* kind = event.kind == KeyEvent::Kind::Character ? "u" : "";
    shown += plain ? std::string(1, static_cast<char>(event.code))
                   : "<" + (kind + std::to_string(event.code)) + ">";
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
  const struct {
    std::wstring_view text;
    std::string keys;
  } rows[] = {
      {L"", ""},
      {L"Hello, x=1; [b]", "Hello, x=1; [b]"},
      {L"a~b", "a<13>b"},
      {L"\u00e9\u20ac", "<u233><u8364>"},
      {L"\U0001F600", "<u55357><u56832>"},  // two units, one after the other
      // modifiers
      {L"^c", "C<67>c"},
      {L"^C", "C<67>c"},
      {L"+ab", "S<65>sb"},
      {L"%{F4}", "A<115>a"},
      {L"^+{ESC}", "SC<27>cs"},
      {L"++a", "S<65>s"},
      {L"+(ab)c", "S<65><66>sc"},
      {L"^(a+(b)c)", "C<65>S<66>s<67>c"},
      {L"+(a+b)", "S<65><66>s"},
      {L"(ab(c))", "abc"},
      {L"+()", "Ss"},
      {L"^(x~)", "C<88><13>c"},
      {L"^{+}", "C<187>c"},
      {L"^/", "C/c"},
      {L"% ", "A<32>a"},
      // named keys, in any case
      {L"{ENTER}{enter}{Return}", "<13><13><13>"},
      {L"{BACKSPACE}{BS}{BKSP}", "<8><8><8>"},
      {L"{BREAK}{CAPSLOCK}{CLEAR}{HELP}", "<3><20><12><47>"},
      {L"{DELETE}{DEL}{INSERT}{INS}", "<46><46><45><45>"},
      {L"{LEFT}{UP}{RIGHT}{DOWN}", "<37><38><39><40>"},
      {L"{HOME}{END}{PGUP}{PGDN}", "<36><35><33><34>"},
      {L"{ESC}{ESCAPE}{TAB}", "<27><27><9>"},
      {L"{NUMLOCK}{SCROLLLOCK}{PRTSC}", "<144><145><44>"},
      {L"{ADD}{SUBTRACT}{MULTIPLY}{DIVIDE}", "<107><109><106><111>"},
      {L"{F1}{f10}{F16}", "<112><121><127>"},
      // literal characters
      {L"{+}{^}{%}{~}{(}{)}{{}{}}{[}{]}", "+^%~(){}[]"},
      {L"{x}", "x"},
      {L"{ }", " "},
      // repeat counts
      {L"{LEFT 3}", "<37><37><37>"},
      {L"{h 3}", "hhh"},
      {L"{} 2}", "}}"},
      {L"{  2}", "  "},
      {L"{a 0}", ""},
      {L"+{TAB 2}", "S<9><9>s"},
      {L"{\U0001F600 2}", "<u55357><u56832><u55357><u56832>"},
      {L"{a  2 }", "aa"},
  };
  for (const auto& row : rows) EXPECT_EQ(Parsed(row.text), row.keys) << row.keys;
}

TEST(KeyNotation, RefusesWhatIsNoNotation) {
  for (const std::wstring_view text :
       {L"{",    L"a{",    L"{ENTER", L"{}",       L"{}x",    L"}",     L"a}b",
        L")",    L"(a",    L"+(a))",  L"+",        L"a^%",    L"(a+)",  L"{NOSUCH}",
        L"{F0}", L"{F17}", L"{F01}",  L"{ENTERX}", L"{ab 2}", L"{a -1}"})
    EXPECT_EQ(Parsed(text), "error 5") << testing::PrintToString(text);
  for (const std::wstring_view text : {L"{LEFT x}", L"{LEFT 1 2}", L"{LEFT }", L"{a 1e3}"})
    EXPECT_EQ(Parsed(text), "error 13") << testing::PrintToString(text);
}

TEST(KeyNotation, BoundsTheNumberOfEvents) {
  EXPECT_EQ(ParseKeyNotation(L"{x 40000}").size(), 80'000u);
  EXPECT_EQ(ParseKeyNotation(std::wstring(40'000, L'x')).size(), 80'000u);
  for (const std::wstring& text : {std::wstring(L"{x 1000000}"), std::wstring(L"{LEFT 2147483647}"),
                                   std::wstring(L"{LEFT 99999999999}"),
                                   std::wstring(L"{x 40000}{x 40000}"), std::wstring(60'000, L'x')})
    EXPECT_EQ(Parsed(text), "error 6") << text.substr(0, 30).c_str();
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

TEST(KeyNotation, SendsTheTextWithItsEvents) {
  memory::Effects effects;
  memory::Faults faults;
  memory::Keyboard keyboard(effects, faults);
  EXPECT_TRUE(SendKeys(keyboard, L"^c"));
  ASSERT_EQ(effects.All().size(), 1u);
  EXPECT_EQ(std::get<std::wstring>(effects.All()[0].fields[0].second), L"^c");
  EXPECT_EQ(Shown(keyboard.typed), "C<67>c");

  EXPECT_THROW(SendKeys(keyboard, L"ab{NOSUCH}"), Error);
  EXPECT_EQ(effects.All().size(), 1u) << "nothing of a bad text is typed";
}

}  // namespace
}  // namespace orvane
