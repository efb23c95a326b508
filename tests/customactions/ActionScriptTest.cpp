#include "customactions/ActionScript.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

/// The steps as a line: literals in "", tokens as name(text,number); then how the parsing ended.
std::wstring Steps(std::wstring_view script) {
  clsCollection steps;
  steps.Add(L"left over");
  const ScriptResult result = ParseActionScript(script, steps);
  std::wstring line;
  for (const auto& step : steps) {
    const std::wstring key = step->m_szKey, data = step->m_szData;
    line += key.empty() ? L"\"" + data + L"\" "
                        : key + L"(" + data + L"," + std::to_wstring(step->m_lData) + L") ";
  }
  if (!result.badNumber.empty()) return line + L"bad " + result.badNumber;
  return line + (result.whole ? L"whole" : L"failed");
}

TEST(ActionScript, BreaksIntoSteps) {
  const struct {
    std::wstring_view script;
    std::wstring_view steps;
  } rows[] = {
      {L"", L"\"\" whole"},
      {L"Hello", L"\"Hello\" whole"},
      {L"ab[orv_pause 250]cd", L"\"ab\" orv_pause(,250) \"cd\" whole"},
      {L"[orv_item]", L"orv_item(,0) whole"},
      {L"[orv_selection][orv_item]", L"orv_selection(,0) orv_item(,0) whole"},
      {L"[orv_date]", L"orv_date(long date,0) whole"},
      {L"[orv_date ]", L"orv_date(long date,0) whole"},
      {L"[orv_date dd mm yy]", L"orv_date(dd mm yy,0) whole"},
      {L"[orv_date  yyyy ]", L"orv_date( yyyy ,0) whole"},
      {L"[orv_pause]", L"orv_pause(,100) whole"},
      {L"[orv_pause -1]", L"orv_pause(,-1) whole"},
      {L"[orv_pause 2147483647]", L"orv_pause(,2147483647) whole"},
      // found in any case, but named exactly
      {L"[ORV_ITEM]x", L"\"[ORV_ITEM]\" \"x\" whole"},
      {L"[Orv_pause 5]", L"\"[Orv_pause 5]\" whole"},
      {L"[orv_items][orv_]", L"\"[orv_items]\" \"[orv_]\" whole"},
      {L"[orv]{ENTER}]", L"\"[orv]{ENTER}]\" whole"},
      // a bracket within a token
      {L"[orv_date [x]y", L"\"[orv_date \" \"[x]y\" whole"},
      {L"[orv_date [orv_item]", L"\"[orv_date \" orv_item(,0) whole"},
      {L"]a[orv_item]]", L"\"]a\" orv_item(,0) \"]\" whole"},
      // failures
      {L"a[orv_item", L"\"a\" \"\" failed"},
      {L"[orv_item][orv_date", L"orv_item(,0) \"\" failed"},
      {L"a[orv_pause x]b", L"\"a\" bad x"},
      {L"[orv_pause  ]", L"bad  "},
      {L"[orv_pause 2147483648]", L"bad 2147483648"},
      {L"[orv_pause 1.5]", L"bad 1.5"},
  };
  for (const auto& row : rows) EXPECT_EQ(Steps(row.script), row.steps);
}

TEST(ActionScript, TakesALongScriptOnce) {
  std::wstring nested;
  for (int i = 0; i < 100'000; ++i) nested += L"[orv_";
  clsCollection steps;
  EXPECT_FALSE(ParseActionScript(nested, steps).whole);
  EXPECT_TRUE(ParseActionScript(nested + L"]", steps).whole);
  EXPECT_EQ(steps.Count(), 100'000);
}

}  // namespace
}  // namespace orvane
