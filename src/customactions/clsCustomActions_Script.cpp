#include <algorithm>

#include "customactions/ActionScript.h"
#include "customactions/KeyNotation.h"
#include "customactions/clsCustomActions.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "support/DateFormat.h"
#include "support/ProductName.h"
#include "support/Trace.h"

namespace orvane {
namespace {

// Scripts are played on the thread of the shell's window, which does not answer meanwhile: all the
// pauses of one script together, and the time spent on a window that takes no keys, are bounded.
constexpr std::uint32_t MaxWait = 60'000;  // milliseconds

std::wstring Bracketed(std::wstring_view name) {
  return L"[" + std::wstring(name) + L"]";
}

}  // namespace

std::wstring clsCustomActions::TokenItem() {
  return Bracketed(ActionToken::Item);
}
std::wstring clsCustomActions::TokenItemEx() {
  return std::wstring(ActionToken::Item);
}
std::wstring clsCustomActions::TokenDate() {
  return Bracketed(ActionToken::Date);
}
std::wstring clsCustomActions::TokenDateEx() {
  return std::wstring(ActionToken::Date);
}
std::wstring clsCustomActions::TokenPause() {
  return Bracketed(ActionToken::Pause);
}
std::wstring clsCustomActions::TokenPauseEx() {
  return std::wstring(ActionToken::Pause);
}
std::wstring clsCustomActions::TokenSelection() {
  return Bracketed(ActionToken::Selection);
}
std::wstring clsCustomActions::TokenSelectionEx() {
  return std::wstring(ActionToken::Selection);
}

void clsCustomActions::BreakdownActions(clsCollection& steps, bool& bSuccess) {
  TraceScope scope(L"BreakdownActions");
  const ScriptResult result = ParseActionScript(m_szActions, steps);
  if (!result.badNumber.empty())
    m_services.boxes.Show(L"Invalid number: " + result.badNumber, g_szAppTitle,
                          MessageBoxes::Icon::Exclamation);
  bSuccess = result.whole;
}

void clsCustomActions::SendActions(const std::wstring& szItem) {
  TraceScope scope(L"SendActions");
  Log(L"szItem=", szItem);
  const LocalTime now = m_services.clock.Now();
  clsCollection steps;
  bool success = false;
  BreakdownActions(steps, success);
  if (!success) return;

  std::uint32_t waitLeft = MaxWait;
  for (const clsCollection::Node& step : steps) {
    if (step->m_szKey == ActionToken::Pause) {
      const std::int32_t pause = std::max(step->m_lData, 0);
      const std::uint32_t wait = std::min(static_cast<std::uint32_t>(pause), waitLeft);
      if (wait > 0) m_services.clock.Pause(wait);
      waitLeft -= wait;
    } else if (!PlayStep(*step, szItem, now)) {
      if (waitLeft < Keyboard::Patience) return;
      waitLeft -= Keyboard::Patience;
    }
  }
}

/// Types one step, errors ignored. False when the window did not take the keys.
bool clsCustomActions::PlayStep(const clsCollection& step, const std::wstring& szItem,
                                const LocalTime& now) {
  TraceScope scope(L"PlayStep");
  try {
    std::wstring keys = step.m_szData;
    if (step.m_szKey == ActionToken::Item) keys = szItem;
    if (step.m_szKey == ActionToken::Date) keys = FormatDate(m_services.locale, now, step.m_szData);
    return keys.empty() || SendKeys(m_services.keyboard, keys);
  } catch (...) {
    scope.Caught();
    return true;
  }
}

std::wstring clsCustomActions::BuildActionString(const std::wstring& szItem,
                                                 const std::wstring& szSelection) {
  TraceScope scope(L"BuildActionString");
  Log(L"szItem=", szItem, L"  szSelection=", szSelection);
  const LocalTime now = m_services.clock.Now();
  clsCollection steps;
  bool success = false;
  BreakdownActions(steps, success);
  if (!success) return m_szActions;

  std::wstring text;
  for (const clsCollection::Node& step : steps) {
    if (step->m_szKey == ActionToken::Item) {
      text += szItem;
    } else if (step->m_szKey == ActionToken::Selection) {
      text += szSelection;
    } else if (step->m_szKey == ActionToken::Date) {
      text += FormatDate(m_services.locale, now, step->m_szData);
    } else if (step->m_szKey == ActionToken::Pause) {
      text += Bracketed(step->m_szKey + L" " + std::to_wstring(step->m_lData));
    } else {
      text += step->m_szData;
    }
  }
  return text;
}

}  // namespace orvane
