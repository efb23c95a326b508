#include "customactions/CheckAction.h"

#include <algorithm>
#include <set>
#include <utility>
#include <variant>

#include "customactions/ActionScript.h"
#include "customactions/KeyNotation.h"
#include "customactions/WindowMatch.h"
#include "support/Error.h"
#include "support/FullPath.h"
#include "support/Number.h"
#include "support/Text.h"

namespace orvane {
namespace {

using Action = CustomAction;

std::wstring Quoted(std::wstring_view text) {
  return L'"' + std::wstring(text) + L'"';
}

/// The findings of one action, as they are gathered.
class ActionChecker {
 public:
  explicit ActionChecker(const Action& action) : m_action(action) {}

  ActionFindings Check() && {
    if (m_action.m_szId.empty()) Warn(L"", L"has no name", L"Give it one.");
    if (m_action.m_szDescription.empty())
      Warn(L"Description", L"is empty", L"Say what the action is for.");
    if (m_action.m_lType == Action::TypeWindow)
      CheckCriteria();
    else if (m_action.m_lType != Action::TypeGeneral)
      Warn(L"Type", L"is neither 1 nor 2: the action is never played",
           L"Use 1 for a window action, 2 for a general one.");
    for (ActionFinding& finding : CheckScript(m_action.m_szActions)) {
      finding.field = L"Actions";
      Add(std::move(finding));
    }
    return std::move(m_findings);
  }

 private:
  void Add(ActionFinding finding) {
    finding.action = m_action.m_szId;
    m_findings.push_back(std::move(finding));
  }
  void Warn(std::wstring field, std::wstring text, std::wstring remedy) {
    Add({.field = std::move(field), .text = std::move(text), .remedy = std::move(remedy)});
  }

  void CheckCriteria() {
    const auto isUsed = [&](const Criterion& criterion) { return IsUsed(m_action, criterion); };
    if (std::ranges::none_of(Criteria, isUsed))
      Warn(L"", L"matches no window: it has no criterion",
           L"Say which program, caption or class the window has.");
    for (const Criterion& criterion : Criteria) CheckCriterion(criterion);
    const bool isCaptionAlone = !isUsed(Criteria[0]) && !isUsed(Criteria[2]);
    if (isCaptionAlone && m_action.m_lCaptionMatch == Action::OptionMatchAnywhere)
      Warn(L"Caption", L"passes for every window without a caption too",
           L"Use the program or the class as well.");
  }

  void CheckCriterion(const Criterion& criterion) {
    const std::wstring& pattern = m_action.*criterion.pattern;
    const std::int32_t mode = m_action.*criterion.mode;
    switch (mode) {
      case Action::OptionMatchIgnore:
        if (!pattern.empty())
          Warn(criterion.modeKey, L"leaves " + Quoted(pattern) + L" untested",
               L"Choose how it is compared, or remove the text.");
        return;
      case Action::OptionMatchPartial:
      case Action::OptionMatchExact:
      case Action::OptionMatchAnywhere:
        return CheckPattern(criterion, pattern, mode);
      default:
        Warn(criterion.modeKey,
             std::to_wstring(mode) + (mode < 0 ? L" is no mode, and nothing is tested"
                                               : L" is no mode, and every window passes"),
             L"Use 0, 1, 2 or 4.");
    }
  }

  void CheckPattern(const Criterion& criterion, const std::wstring& pattern, std::int32_t mode) {
    const bool isProgram = criterion.value == nullptr;
    if (pattern.empty() && mode == Action::OptionMatchPartial)
      Warn(criterion.key, L"is empty, and every window passes", L"Say how it begins.");
    else if (pattern.empty())
      Warn(criterion.key, L"is empty, and only a window without one passes", L"Say what it is.");
    else if (isProgram && !NamesAProgram(pattern, mode))
      Warn(criterion.key, L"matches no program: it is compared with the full path",
           L"Begin it with the drive, such as C:\\Windows\\notepad.exe.");
  }

  /// Whether the pattern can hold or begin a full path.
  static bool NamesAProgram(const std::wstring& pattern, std::int32_t mode) {
    if (mode == Action::OptionMatchAnywhere)
      return pattern.find(L":\\") != pattern.npos || pattern.find(L"\\\\") != pattern.npos;
    if (mode == Action::OptionMatchExact || pattern.size() > 2) return IsFullPath(pattern);
    return pattern.size() == 1 || pattern[1] == L':' || pattern == L"\\\\";
  }

  const Action& m_action;
  ActionFindings m_findings;
};

/// Whether no window gets to the second action since the first one takes it.
bool Hides(const Action& first, const Action& second) {
  const auto takesWindows = [](const Action& action) {
    return action.m_lType == Action::TypeWindow && action.IsOptionEnabled();
  };
  return takesWindows(first) && takesWindows(second) &&
         std::ranges::all_of(Criteria, [&](const Criterion& criterion) {
           const bool isUsed = IsUsed(first, criterion);
           return isUsed == IsUsed(second, criterion) &&
                  (!isUsed || (first.*criterion.mode == second.*criterion.mode &&
                               first.*criterion.pattern == second.*criterion.pattern));
         });
}

ActionFinding UnplayedToken(std::size_t place, const std::wstring& literal) {
  return {
      .place = place,
      .length = literal.size(),
      .text = Quoted(literal) + L" is no token and is typed as it stands",
      .remedy = L"Use [orv_item], [orv_date], [orv_pause] or [orv_selection], in small letters."};
}

ActionFinding UnplayedKeys(std::size_t place, const std::wstring& literal, const KeyFault& fault) {
  return {.place = place + fault.place,
          .length = fault.length,
          .text = L"has keys that are not played, " + Quoted(literal) + L": " + fault.text,
          .remedy = L"Put a character that is meant as such in braces, such as {+} or {(}."};
}

/// The number of an action in a file, and what is wrong with it.
std::int32_t ReadNumber(const std::wstring& id, const wchar_t* key, const std::wstring& text,
                        ActionFindings& findings) {
  try {
    return ParseNumber16(text);
  } catch (const Error&) {
    findings.push_back({.severity = ActionFinding::Severity::Error,
                        .action = id,
                        .field = key,
                        .text = L"is no number: " + Quoted(text) +
                                L", which can keep all actions from being played",
                        .remedy = L"Use a whole number from -32768 to 32767."});
    return key == std::wstring_view(L"Type") ? Action::TypeAny : 0;
  }
}

}  // namespace

ActionFindings CheckScript(std::wstring_view script) {
  if (script.empty()) return {{.text = L"plays nothing", .remedy = L"Give it a script."}};
  ActionSteps steps;
  const ScriptResult result = ParseActionScript(script, steps);
  const std::size_t last = result.places.back();
  if (!result.badNumber.empty())
    return {{.place = last,
             .length = script.find(L']', last) + 1 - last,
             .text = L"is not played: " + Quoted(result.badNumber) + L" is no pause",
             .remedy = L"Use a number of milliseconds."}};
  if (!result.whole)
    return {{.place = last,
             .length = script.size() - last,
             .text = L"is not played: a token has no ]",
             .remedy = L"Close the token."}};
  ActionFindings findings;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const auto* keys = std::get_if<LiteralStep>(&steps[i]);
    if (!keys) continue;
    if (LowerCase(keys->keys).starts_with(L"[orv_"))
      findings.push_back(UnplayedToken(result.places[i], keys->keys));
    if (const auto fault = FindKeyFault(keys->keys))
      findings.push_back(UnplayedKeys(result.places[i], keys->keys, *fault));
  }
  return findings;
}

ActionFindings CheckAction(const CustomAction& action) {
  return ActionChecker(action).Check();
}

ActionFindings CheckActions(const std::vector<CustomAction>& actions) {
  ActionFindings findings;
  std::set<std::wstring> names;
  for (auto action = actions.begin(); action != actions.end(); ++action) {
    const ActionFindings own = CheckAction(*action);
    findings.insert(findings.end(), own.begin(), own.end());
    const std::wstring& id = action->m_szId;
    if (!names.insert(LowerCase(id)).second)
      findings.push_back({.severity = ActionFinding::Severity::Error,
                          .action = id,
                          .text = L"has the name of another action, and only one counts",
                          .remedy = L"Give it a name of its own."});
    const auto hider = std::find_if(actions.begin(), action,
                                    [&](const Action& first) { return Hides(first, *action); });
    if (hider != action)
      findings.push_back({.action = id,
                          .text = L"is never played: " + Quoted(hider->m_szId) +
                                  L" before it takes the same windows",
                          .remedy = L"Move it up, or make its criteria narrower."});
  }
  return findings;
}

std::vector<CustomAction> ReadActions(const ActionsFile& file, ActionFindings& findings) {
  std::vector<CustomAction> actions;
  for (const std::wstring& id : file.Ids())
    actions.push_back(file.Action(id, [&](const wchar_t* key, const std::wstring& text) {
      return ReadNumber(id, key, text, findings);
    }));
  std::ranges::stable_sort(actions, {}, &CustomAction::m_lOrder);
  return actions;
}

ActionFindings FindUnseen(const ActionsFile& file) {
  ActionFindings findings;
  for (const std::wstring& name : file.Unseen())
    findings.push_back({.action = name,
                        .text = L"does not count: an action of its name, or a section without a "
                                L"name, stands before it",
                        .remedy = L"Give the section a name of its own."});
  return findings;
}

ActionFindings CheckActionsFile(const ActionsFile& file) {
  ActionFindings findings;
  const std::vector<CustomAction> actions = ReadActions(file, findings);
  for (const ActionFindings& others : {FindUnseen(file), CheckActions(actions)})
    findings.insert(findings.end(), others.begin(), others.end());
  return findings;
}

}  // namespace orvane
