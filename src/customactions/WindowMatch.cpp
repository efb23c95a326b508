#include "customactions/WindowMatch.h"

#include <algorithm>
#include <utility>

#include "customactions/clsProcess.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

// Windows move while they are walked: a chain that bends back into itself must end.
constexpr std::size_t MaxChain = 256;

bool Compare(const MatchText& pattern, const MatchText& value, std::int32_t mode) {
  switch (mode) {
    case CustomAction::OptionMatchExact:
      return value.text == pattern.text;
    case CustomAction::OptionMatchPartial:
      return value.lower.starts_with(pattern.lower);
    case CustomAction::OptionMatchAnywhere:
      return pattern.lower.find(value.lower) != std::wstring::npos;
    default:
      return true;
  }
}

}  // namespace

MatchText::MatchText(std::wstring szText) : text(std::move(szText)), lower(LowerCase(text)) {}

bool MatchString(const MatchText& szSrc, const MatchText& szDest, std::int32_t lMode) {
  TraceScope scope(L"MatchString");
  Log(L"szSrc=", szSrc.text, L"  szDest=", szDest.text, L"  lMode=", lMode);
  const bool result = Compare(szSrc, szDest, lMode);
  Log(L"MatchString=", result);
  return result;
}

const MatchText* PassingValue(const CustomAction& action, const Criterion& criterion,
                              const MatchTarget& target) {
  const MatchText pattern(action.*criterion.pattern);
  const std::int32_t mode = action.*criterion.mode;
  if (!criterion.value) return MatchString(pattern, target.exe, mode) ? &target.exe : nullptr;
  const auto passing = std::ranges::find_if(target.chain, [&](const MatchTarget::Window& window) {
    return MatchString(pattern, window.*criterion.value, mode);
  });
  return passing == target.chain.end() ? nullptr : &((*passing).*criterion.value);
}

MatchTarget LookAtWindow(Windows& windows, clsProcess& process, WindowHandle hWnd) {
  MatchTarget target;
  for (WindowHandle window = hWnd; window != WindowHandle::None && target.chain.size() < MaxChain;
       window = windows.Parent(window)) {
    std::wstring className, caption;
    GetWindowClassAndCaption(windows, window, className, caption);
    Log(L"szClass=", className, L"  szCaption=", caption);
    target.chain.push_back({MatchText(std::move(className)), MatchText(std::move(caption))});
  }
  target.exe = MatchText(process.GetExeViaHwnd(hWnd));
  return target;
}

}  // namespace orvane
