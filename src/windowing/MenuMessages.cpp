#include "windowing/MenuMessages.h"

#include <cstdint>

#include "graphics/MenuItemMessages.h"
#include "win32/NativeHandles.h"

namespace orvane::windowing {
namespace {

std::intptr_t Address(const void* record) {
  return reinterpret_cast<std::intptr_t>(record);
}

void Measure(ContextMenuHandler& handler, WPARAM wParam, MEASUREITEMSTRUCT* native,
             std::intptr_t* result) {
  MeasureItem item{.id = static_cast<std::int32_t>(native->itemID),
                   .width = static_cast<std::int32_t>(native->itemWidth),
                   .height = static_cast<std::int32_t>(native->itemHeight)};
  handler.IContextMenu3_HandleMenuMsg2(WM_MEASUREITEM, static_cast<std::intptr_t>(wParam),
                                       Address(&item), result);
  native->itemWidth = static_cast<UINT>(item.width);
  native->itemHeight = static_cast<UINT>(item.height);
}

void Draw(ContextMenuHandler& handler, WPARAM wParam, const DRAWITEMSTRUCT& native,
          std::intptr_t* result) {
  const RECT& rect = native.rcItem;
  const DrawItem item{.id = static_cast<std::int32_t>(native.itemID),
                      .state = native.itemState,
                      .context = win32::FromNative<DeviceContext>(native.hDC),
                      .rect = {rect.left, rect.top, rect.right, rect.bottom}};
  handler.IContextMenu3_HandleMenuMsg2(WM_DRAWITEM, static_cast<std::intptr_t>(wParam),
                                       Address(&item), result);
}

}  // namespace

void ForwardMenuMessage(ContextMenuHandler& handler, UINT message, WPARAM wParam, LPARAM lParam,
                        LRESULT* result) {
  std::intptr_t answer = 0;
  if (message == WM_MEASUREITEM) {
    auto* native = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
    if (native && native->CtlType == ODT_MENU) Measure(handler, wParam, native, &answer);
  } else if (message == WM_DRAWITEM) {
    const auto* native = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    if (native && native->CtlType == ODT_MENU) Draw(handler, wParam, *native, &answer);
  } else {
    handler.IContextMenu3_HandleMenuMsg2(message, static_cast<std::intptr_t>(wParam), lParam,
                                         &answer);
  }
  if (result) *result = answer;
}

}  // namespace orvane::windowing
