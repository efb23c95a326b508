#include <algorithm>
#include <utility>

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

/// Plays runs of keys with pauses between them, a minute at most: scripts run on the thread of the
/// shell's window. All pauses together count, and the time spent on windows that take no keys.
class KeyPlayer {
 public:
  explicit KeyPlayer(Keyboard& keyboard) : m_keyboard(keyboard) {}

  /// False when the minute is over.
  bool Play(const std::vector<KeyText>& run) {
    if (run.empty() || m_keyboard.Type(run)) return true;
    if (m_waitLeft < Keyboard::Patience) return false;
    m_waitLeft -= Keyboard::Patience;
    return true;
  }

  void Pause(std::uint32_t milliseconds) {
    const std::uint32_t wait = std::min(milliseconds, m_waitLeft);
    if (wait > 0) m_keyboard.Pause(wait);
    m_waitLeft -= wait;
  }

 private:
  Keyboard& m_keyboard;
  std::uint32_t m_waitLeft = 60'000;  // milliseconds
};

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

void clsCustomActions::BreakdownActions(ActionSteps& steps, bool& bSuccess) {
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
  ActionSteps steps;
  bool success = false;
  BreakdownActions(steps, success);
  if (!success) return;

  KeyPlayer player(m_services.keyboard);
  std::vector<KeyText> run;
  for (const ActionStep& step : steps) {
    const auto* pause = std::get_if<PauseStep>(&step);
    if (!pause) {
      AddKeys(run, step, szItem, now);
    } else if (pause->milliseconds > 0) {
      if (!player.Play(std::exchange(run, {}))) return;
      player.Pause(static_cast<std::uint32_t>(pause->milliseconds));
    }
  }
  player.Play(run);
}

/// Adds what one step types to the keys that are played together; nothing when it cannot be typed.
void clsCustomActions::AddKeys(std::vector<KeyText>& run, const ActionStep& step,
                               const std::wstring& szItem, const LocalTime& now) {
  TraceScope scope(L"AddKeys");
  try {
    const std::wstring text = StepText(step, szItem, L"", now);
    Log(L"szText=", text);
    if (!text.empty()) run.push_back({text, ParseKeyNotation(text)});
  } catch (...) {
    scope.Caught();
  }
}

std::wstring clsCustomActions::StepText(const ActionStep& step, const std::wstring& szItem,
                                        const std::wstring& szSelection, const LocalTime& now) {
  struct Text {
    std::wstring operator()(const LiteralStep& literal) const { return literal.keys; }
    std::wstring operator()(const ItemStep&) const { return item; }
    std::wstring operator()(const SelectionStep&) const { return selection; }
    std::wstring operator()(const DateStep& date) const {
      return FormatDate(locale, now, date.format);
    }
    std::wstring operator()(const PauseStep& pause) const {
      return Bracketed(TokenPauseEx() + L" " + std::to_wstring(pause.milliseconds));
    }

    const std::wstring& item;
    const std::wstring& selection;
    Locale& locale;
    const LocalTime& now;
  };
  return std::visit(Text{szItem, szSelection, m_services.locale, now}, step);
}

std::wstring clsCustomActions::BuildActionString(const std::wstring& szItem,
                                                 const std::wstring& szSelection) {
  TraceScope scope(L"BuildActionString");
  Log(L"szItem=", szItem, L"  szSelection=", szSelection);
  const LocalTime now = m_services.clock.Now();
  ActionSteps steps;
  bool success = false;
  BreakdownActions(steps, success);
  if (!success) return m_szActions;
  std::wstring text;
  for (const ActionStep& step : steps) text += StepText(step, szItem, szSelection, now);
  return text;
}

}  // namespace orvane
