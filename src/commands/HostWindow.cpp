#include "commands/HostWindow.h"

#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

// Windows move while they are walked; a chain that bends back into itself must end.
constexpr int MaxDepth = 1000;

template <class Predicate>
WindowHandle FirstOnTheWayUp(Windows& windows, WindowHandle window, Predicate matches) {
  for (int depth = 0; window != WindowHandle::None && depth < MaxDepth; ++depth) {
    const std::wstring className = LowerCase(windows.ClassName(window));
    if (!className.empty() && matches(className)) return window;
    window = windows.Parent(window);
  }
  return WindowHandle::None;
}

}  // namespace

WindowHandle GetRootExplorerWindow(Windows& windows, WindowHandle window) {
  TraceScope scope(L"GetRootExplorerWindow");
  const WindowHandle found = FirstOnTheWayUp(windows, window, [](const std::wstring& name) {
    return name == L"cabinetwclass" || name == L"explorewclass";
  });
  Log(L"GetRootExplorerWindow=", Hex(found));
  return found;
}

WindowHandle GetRootOfficeWindow(Windows& windows, WindowHandle window) {
  TraceScope scope(L"GetRootOfficeWindow");
  const WindowHandle found = FirstOnTheWayUp(
      windows, window, [](const std::wstring& name) { return name.starts_with(L"bosa_sdm"); });
  Log(L"GetRootOfficeWindow=", Hex(found));
  return found;
}

bool IsIE(Windows& windows, WindowHandle window) {
  TraceScope scope(L"IsIE");
  const WindowHandle found =
      FirstOnTheWayUp(windows, window, [](const std::wstring& name) { return name == L"ieframe"; });
  const bool isIE = found != WindowHandle::None;
  Log(L"IsIE=", isIE);
  return isIE;
}

}  // namespace orvane
