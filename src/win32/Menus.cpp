#include "win32/Menus.h"

#include "win32/NativeHandles.h"

namespace orvane::win32 {
namespace {

HMENU Native(MenuHandle menu) {
  return ToNative<HMENU>(menu);
}

UINT StateOf(MenuEntry::State state) {
  switch (state) {
    case MenuEntry::State::Disabled:
      return MF_DISABLED;
    case MenuEntry::State::Grayed:
      return MF_GRAYED | MF_DISABLED;
    default:
      return MFS_ENABLED;
  }
}

}  // namespace

MenuHandle Menus::CreatePopup() {
  return FromNative<MenuHandle>(CreatePopupMenu());
}

void Menus::Destroy(MenuHandle menu) {
  DestroyMenu(Native(menu));
}

bool Menus::Exists(MenuHandle menu) {
  return IsMenu(Native(menu));
}

std::int32_t Menus::Count(MenuHandle menu) {
  return GetMenuItemCount(Native(menu));
}

bool Menus::Insert(MenuHandle menu, std::int32_t position, const MenuEntry& entry) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE;
  info.fType = entry.separator ? MFT_SEPARATOR : MFT_STRING;
  if (entry.ownerDraw) info.fType |= MFT_OWNERDRAW;
  info.fState = StateOf(entry.state);
  info.wID = entry.id;
  if (!entry.separator) {
    info.fMask |= MIIM_STRING;
    info.dwTypeData = const_cast<wchar_t*>(entry.caption.c_str());  // only read
  }
  if (entry.submenu != MenuHandle::None) {
    info.fMask |= MIIM_SUBMENU;
    info.hSubMenu = Native(entry.submenu);
  }
  if (entry.bitmap != BitmapHandle::None) {
    info.fMask |= MIIM_CHECKMARKS;
    info.hbmpChecked = info.hbmpUnchecked = ToNative<HBITMAP>(entry.bitmap);
  }
  return InsertMenuItemW(Native(menu), static_cast<UINT>(position), TRUE, &info);
}

bool Menus::Remove(MenuHandle menu, std::int32_t position) {
  return DeleteMenu(Native(menu), static_cast<UINT>(position), MF_BYPOSITION);
}

bool Menus::Look(MenuHandle menu, std::int32_t position, std::wstring& caption,
                 MenuHandle& submenu) {
  wchar_t text[256] = L"";
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_SUBMENU | MIIM_STRING;
  info.dwTypeData = text;
  info.cch = ARRAYSIZE(text);
  if (!GetMenuItemInfoW(Native(menu), static_cast<UINT>(position), TRUE, &info)) return false;
  caption = text;
  submenu = FromNative<MenuHandle>(info.hSubMenu);
  return true;
}

std::int32_t Menus::Highlighted(MenuHandle menu) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_STATE;
  const std::int32_t count = Count(menu);
  for (std::int32_t i = 0; i < count; ++i) {
    const bool found = GetMenuItemInfoW(Native(menu), static_cast<UINT>(i), TRUE, &info);
    if (found && (info.fState & MFS_HILITE) != 0) return i;
  }
  return -1;
}

}  // namespace orvane::win32
