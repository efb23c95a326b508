#include "customactions/ActionsFixture.h"

namespace orvane {
namespace {

class SendActionsTest : public test::ActionsFixture {
 protected:
  std::wstring Sent(const std::wstring& script, const std::wstring& item = L"C:\\x") {
    desktop.effects.Clear();
    actions.m_szActions = script;
    actions.SendActions(item);
    return Effects();
  }

  std::wstring Built(const std::wstring& script) {
    actions.m_szActions = script;
    return actions.BuildActionString(L"<item>", L"a.txt");
  }
};

TEST_F(SendActionsTest, PlaysTheStepsInOrder) {
  const struct {
    const wchar_t* script;
    const wchar_t* effects;
  } rows[] = {
      {L"Hello", L"SendKeys Hello\n"},
      {L"", L""},
      {L"ab[orv_pause 250]cd", L"SendKeys ab\nSleep 250\nSendKeys cd\n"},
      {L"[orv_pause]", L"Sleep 100\n"},
      {L"%n[orv_item]~", L"SendKeys %n\nSendKeys C:\\x\nSendKeys ~\n"},
      {L"[orv_date]", L"SendKeys Monday, 1 January 2024\n"},
      {L"[orv_date yyyy]", L"SendKeys 2024\n"},
      {L"[orv_selection]", L""},
      {L"[ORV_ITEM]", L"SendKeys [ORV_ITEM]\n"},
      {L"[orv_item", L""},
      {L"ab[orv_pause x]cd", L"MessageBox Invalid number: x\n"},
      {L"a{NOSUCH}[orv_item]", L"SendKeys C:\\x\n"},  // the bad step alone is left out
      {L"[orv_pause -1]a[orv_pause 0]", L"SendKeys a\n"},
  };
  for (const auto& row : rows) EXPECT_EQ(Sent(row.script), row.effects) << row.script;
}

TEST_F(SendActionsTest, ShowsOneTimeInAllDates) {
  EXPECT_EQ(Sent(L"[orv_date h:nn:ss][orv_pause 5000][orv_date h:nn:ss]"),
            L"SendKeys 9:05:07\nSleep 5000\nSendKeys 9:05:07\n");
}

TEST_F(SendActionsTest, BoundsAllPausesTogether) {
  EXPECT_EQ(Sent(L"[orv_pause 2147483647]a[orv_pause 5]b"),
            L"Sleep 60000\nSendKeys a\nSendKeys b\n");
  EXPECT_EQ(Sent(L"[orv_pause 40000][orv_pause 40000]"), L"Sleep 40000\nSleep 20000\n");
}

TEST_F(SendActionsTest, GivesUpAWindowThatTakesNoKeys) {
  class DeafKeyboard : public memory::Keyboard {
   public:
    using memory::Keyboard::Keyboard;
    bool Type(const std::wstring&, const std::vector<KeyEvent>&) override { return ++times, false; }
    int times = 0;
  };
  DeafKeyboard keyboard(desktop.effects, desktop.faults);
  ActionServices deaf{services.files,   services.profiles, services.windows,
                      services.process, keyboard,          services.clock,
                      services.locale,  services.boxes,    services.codePage};
  clsCustomActions patient(deaf);
  for (int i = 0; i < 1000; ++i) patient.m_szActions += L"a[orv_item]";
  patient.SendActions(L"x");
  EXPECT_EQ(keyboard.times, 31) << "a minute, at the keyboard's patience";
}

TEST_F(SendActionsTest, TakesADateFormatOfAnyLength) {
  EXPECT_EQ(Sent(L"[orv_date " + std::wstring(10'000, L'-') + L"]").size(), 10'010u);
}

TEST_F(SendActionsTest, BuildsOneText) {
  const struct {
    const wchar_t* script;
    const wchar_t* text;
  } rows[] = {
      {L"", L""},
      {L"/s [orv_selection]", L"/s a.txt"},
      {L"[orv_item]+[orv_selection]", L"<item>+a.txt"},
      {L"[orv_date yyyy]", L"2024"},
      {L"a[orv_pause]b[orv_pause 7]", L"a[orv_pause 100]b[orv_pause 7]"},
      {L"[orv_pause 007]", L"[orv_pause 7]"},
      {L"[ORV_SELECTION]", L"[ORV_SELECTION]"},
      {L"{NOSUCH}", L"{NOSUCH}"},
      {L"[orv_item][orv_selection", L"[orv_item][orv_selection"},  // unchanged
  };
  for (const auto& row : rows) EXPECT_EQ(Built(row.script), row.text) << row.script;
  EXPECT_EQ(Effects(), L"");
  EXPECT_EQ(Built(L"x[orv_pause y][orv_item]"), L"x[orv_pause y][orv_item]");
  EXPECT_EQ(Effects(), L"MessageBox Invalid number: y\n");
}

}  // namespace
}  // namespace orvane
