#include "shellext/CaptionSearch.h"

#include "support/Trace.h"

namespace orvane {
namespace {

// Menus are other extensions' work too; one that holds itself must not end the stack.
constexpr int MaxDepth = 64;

bool Search(Menus& menus, const std::wstring& wanted, MenuHandle menu, std::int32_t start,
            int depth) {
  const std::int32_t count = menus.Count(menu);
  Log(L"lNumMenuItems=", count, L"  hMenu=", Hex(menu), L"  lStartingPos=", start);
  Log(L"szRootMenuCaption=", wanted);
  for (std::int32_t position = start; position < count; ++position) {
    std::wstring caption;
    MenuHandle submenu = MenuHandle::None;
    if (!menus.Look(menu, position, caption, submenu)) continue;
    Log(L"mii.hSubMenu=", Hex(submenu), L"  lLength=", caption.size(), L"  szMenuCaption=",
        caption);
    if (!caption.empty() && caption == wanted) return true;
    if (submenu != MenuHandle::None && depth < MaxDepth &&
        Search(menus, wanted, submenu, 0, depth + 1))
      return true;
  }
  return false;
}

}  // namespace

bool IsCaptionInMenu(Menus& menus, const std::wstring& szRootMenuCaption, MenuHandle hMenu,
                     std::int32_t lStartingPos) {
  TraceScope scope(L"IsCaptionInMenu");
  return Search(menus, szRootMenuCaption, hMenu, lStartingPos, 0);
}

}  // namespace orvane
