#include "designer/WindowTest.h"

#include <algorithm>

#include "customactions/clsProcess.h"

namespace orvane::designer {
namespace {

const std::wstring& ValueOf(const Criterion& criterion, const MatchTarget& target) {
  return (criterion.value ? target.chain.front().*criterion.value : target.exe).text;
}

std::wstring Shown(const std::wstring& value) {
  return value.empty() ? L"it has none" : value;
}

std::wstring InWords(const CustomAction& action, const Criterion& criterion,
                     const MatchTarget& target) {
  if (!IsUsed(action, criterion)) return L"not tested";
  const MatchText* passing = PassingValue(action, criterion, target);
  if (!passing) return L"fails: " + Shown(ValueOf(criterion, target));
  const bool isAbove = criterion.value && passing != &(target.chain.front().*criterion.value);
  return (isAbove ? L"passes in a window above: " : L"passes: ") + Shown(passing->text);
}

/// How a criterion is best compared with what a window has: programs and captions in any case.
std::int32_t UsualMode(const Criterion& criterion) {
  const bool isClass = criterion.value == &MatchTarget::Window::className;
  return isClass ? CustomAction::OptionMatchExact : CustomAction::OptionMatchPartial;
}

}  // namespace

std::wstring ModeText(std::int32_t mode) {
  switch (mode) {
    case CustomAction::OptionMatchIgnore:
      return L"is not tested";
    case CustomAction::OptionMatchPartial:
      return L"begins with";
    case CustomAction::OptionMatchExact:
      return L"is exactly";
    case CustomAction::OptionMatchAnywhere:
      return L"occurs in";
    default:
      return L"is compared by an unknown mode, " + std::to_wstring(mode);
  }
}

std::wstring FieldLabel(std::wstring_view key) {
  if (key.starts_with(L"Exe")) return L"Program";
  if (key.starts_with(L"Caption")) return L"Caption";
  if (key.starts_with(L"Class")) return L"Class";
  if (key == L"Actions") return L"Script";
  return std::wstring(key.empty() ? L"Action" : key);
}

WindowTest TestWindow(const CustomAction& action, Windows& windows, clsProcess& process,
                      WindowHandle window) {
  const MatchTarget target = LookAtWindow(windows, process, window);
  WindowTest test;
  if (target.chain.empty()) return test;
  test.caption = target.chain.front().caption.text;
  const wchar_t* failing = nullptr;
  bool isUsed = false;
  for (std::size_t i = 0; i < std::size(Criteria); ++i) {
    const Criterion& criterion = Criteria[i];
    test.criteria[i] = InWords(action, criterion, target);
    if (!IsUsed(action, criterion)) continue;
    isUsed = true;
    if (!failing && !PassingValue(action, criterion, target)) failing = criterion.key;
  }
  test.matches = isUsed && !failing;
  test.outcome = test.matches ? L"matches"
                 : isUsed     ? L"does not match: " + FieldLabel(failing)
                              : L"does not match: nothing is tested";
  return test;
}

void TakeWindow(CustomAction& action, Windows& windows, clsProcess& process, WindowHandle window) {
  const MatchTarget target = LookAtWindow(windows, process, window);
  if (target.chain.empty() || target.chain.front().className.text.empty()) return;
  action.m_lType = CustomAction::TypeWindow;
  for (const Criterion& criterion : Criteria) {
    const std::wstring& value = ValueOf(criterion, target);
    std::int32_t& mode = action.*criterion.mode;
    action.*criterion.pattern = value;
    if (value.empty())
      mode = CustomAction::OptionMatchIgnore;
    else if (mode <= CustomAction::OptionMatchIgnore)
      mode = UsualMode(criterion);
  }
}

std::wstring DescribeWindow(Windows& windows, clsProcess& process, WindowHandle window) {
  std::wstring className, caption;
  GetWindowClassAndCaption(windows, window, className, caption);
  const std::wstring exe = process.GetExeViaHwnd(window);
  const std::wstring program = exe.substr(exe.find_last_of(L'\\') + 1);
  return (caption.empty() ? L"(no caption)" : caption) + L" - " +
         (program.empty() ? L"unknown program" : program) + L", class " + className;
}

}  // namespace orvane::designer
