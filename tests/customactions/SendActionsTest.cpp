#include "customactions/ActionsFixture.h"

namespace orvane {
namespace {

class SendActionsTest : public test::ActionsFixture {
 protected:
  /// What playing the script does, in order: the typed texts and those of message boxes in "",
  /// pauses as numbers.
  std::wstring Sent(const std::wstring& script) {
    desktop.effects.Clear();
    actions.m_szActions = script;
    actions.SendActions(L"C:\\x");
    std::wstring shown;
    for (const auto& [call, fields] : desktop.effects.All()) {
      const auto& value = fields[call == "MessageBox" ? 1 : 0].second;
      if (const auto* text = std::get_if<std::wstring>(&value)) shown += L"\"" + *text + L"\" ";
      if (const auto* pause = std::get_if<std::int64_t>(&value))
        shown += std::to_wstring(*pause) + L" ";
    }
    return shown;
  }
};

TEST_F(SendActionsTest, PlaysTheStepsInOrder) {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"ab[orv_pause 250]cd[orv_pause]", L"\"ab\" 250 \"cd\" 100 "},
      {L"%n[orv_item]~[orv_selection]", L"\"%n\" \"C:\\x\" \"~\" "},
      {L"[orv_date][orv_date ]", L"\"Monday, 1 January 2024\" \"Monday, 1 January 2024\" "},
      {L"[orv_date  yyyy ]", L"\" 2024 \" "},
      {L"[orv_pause -1]a[orv_pause 0]", L"\"a\" "},
      {L"a{NOSUCH}[orv_item]", L"\"C:\\x\" "},  // the bad step alone is left out
      // Found in any case, but named exactly.
      {L"[ORV_ITEM]x", L"\"[ORV_ITEM]\" \"x\" "},
      {L"[Orv_pause 5][orv_items]", L"\"[Orv_pause 5]\" \"[orv_items]\" "},
      // A bracket within a token.
      {L"]a[orv_date [orv_item]]", L"\"]a\" \"[orv_date \" \"C:\\x\" \"]\" "},
      // Nothing is typed of a script that is not understood.
      {L"a[orv_item", L""},
      {L"ab[orv_pause x]cd", L"\"Invalid number: x\" "},
      {L"[orv_pause 2147483648]", L"\"Invalid number: 2147483648\" "},
      // All dates of a script show the time at which it began, all its pauses together have an end.
      {L"[orv_date h:nn:ss][orv_pause 5000][orv_date h:nn:ss]", L"\"9:05:07\" 5000 \"9:05:07\" "},
      {L"[orv_pause 2147483647]a[orv_pause 5]b", L"60000 \"a\" \"b\" "},
      {L"[orv_pause 40000][orv_pause 40000]", L"40000 20000 "},
  };
  for (const auto& [script, sent] : rows) EXPECT_EQ(Sent(script), sent) << script;
  EXPECT_EQ(Sent(L"[orv_date " + std::wstring(10'000, L'-') + L"]").size(), 10'003u);
}

TEST_F(SendActionsTest, TakesALongScriptOnce) {
  for (int i = 0; i < 100'000; ++i) actions.m_szActions += L"[orv_";
  EXPECT_EQ(actions.BuildActionString(L"", L""), actions.m_szActions);
  actions.m_szActions += L"]";
  EXPECT_EQ(actions.BuildActionString(L"", L""), actions.m_szActions);
}

TEST_F(SendActionsTest, GivesUpAWindowThatTakesNoKeys) {
  class DeafKeyboard : public memory::Keyboard {
   public:
    using memory::Keyboard::Keyboard;
    bool Type(const std::vector<KeyText>&) override { return ++times, false; }
    int times = 0;
  };
  DeafKeyboard keyboard(desktop.clock, desktop.effects, desktop.faults);
  clsCustomActions patient({files, profiles, desktop.windows, process, keyboard, desktop.clock,
                            desktop.locale, desktop.boxes, codePage});
  for (int i = 0; i < 1000; ++i) patient.m_szActions += L"a[orv_pause 1]";
  patient.SendActions(L"x");
  EXPECT_EQ(keyboard.times, 30) << "a minute, at the keyboard's patience";
}

TEST_F(SendActionsTest, BuildsOneText) {
  const std::pair<const wchar_t*, const wchar_t*> rows[] = {
      {L"[orv_item]+[orv_selection] [orv_date yyyy]{NOSUCH}", L"<item>+a.txt 2024{NOSUCH}"},
      {L"a[orv_pause]b[orv_pause 007]", L"a[orv_pause 100]b[orv_pause 7]"},
      {L"[orv_item][orv_selection", L"[orv_item][orv_selection"},  // unchanged
      {L"x[orv_pause y][orv_item]", L"x[orv_pause y][orv_item]"},
  };
  for (const auto& [script, text] : rows) {
    actions.m_szActions = script;
    EXPECT_EQ(actions.BuildActionString(L"<item>", L"a.txt"), text);
  }
  EXPECT_EQ(desktop.effects.All().size(), 1u) << "the message about the pause, no keys";
}

}  // namespace
}  // namespace orvane
