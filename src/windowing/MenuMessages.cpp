#include "windowing/MenuMessages.h"

#include <cstdint>

#include "support/Trace.h"
#include "win32/NativeHandles.h"

namespace orvane::windowing {
namespace {

void LogMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  Log(L"uMsg=", Hex(static_cast<std::int32_t>(message)), L"  wParam=",
      Hex(static_cast<std::int32_t>(wParam)), L"  lParam=", Hex(static_cast<std::int32_t>(lParam)));
}

void Measure(OpenMenu& menu, MEASUREITEMSTRUCT* item) {
  if (!item || item->CtlType != ODT_MENU) return;
  const auto size = menu.Measure(static_cast<std::int32_t>(item->itemID));
  if (!size) return;
  item->itemWidth = static_cast<UINT>(size->width);
  item->itemHeight = static_cast<UINT>(size->height);
}

void Draw(OpenMenu& menu, const DRAWITEMSTRUCT* item) {
  if (!item || item->CtlType != ODT_MENU) return;
  const RECT& rect = item->rcItem;
  menu.Draw({.id = static_cast<std::int32_t>(item->itemID),
             .state = item->itemState,
             .context = win32::FromNative<DeviceContext>(item->hDC),
             .rect = {rect.left, rect.top, rect.right, rect.bottom}});
}

}  // namespace

void HandleMenuMsg(OpenMenu& menu, UINT message, WPARAM wParam, LPARAM lParam) {
  TraceScope scope(L"IContextMenu2_HandleMenuMsg");
  LogMessage(message, wParam, lParam);
  HandleMenuMsg2(menu, message, wParam, lParam);
}

LRESULT HandleMenuMsg2(OpenMenu& menu, UINT message, WPARAM wParam, LPARAM lParam) {
  TraceScope scope(L"IContextMenu3_HandleMenuMsg2");
  LogMessage(message, wParam, lParam);
  if (message == WM_MEASUREITEM)
    Measure(menu, reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
  else if (message == WM_DRAWITEM && wParam == 0)
    Draw(menu, reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
  else if (message == WM_INITMENUPOPUP)
    menu.Open(ToHandle<MenuHandle>(static_cast<std::int32_t>(wParam)));
  else if (message == WM_MENUCHAR)
    return menu.Type(ToHandle<MenuHandle>(static_cast<std::int32_t>(lParam)), LOWORD(wParam));
  return 0;
}

}  // namespace orvane::windowing
