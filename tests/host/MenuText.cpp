#include "host/MenuText.h"

namespace orvane::host {
namespace {

MENUITEMINFOW Look(HMENU menu, int position, wchar_t (&caption)[256]) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_SUBMENU | MIIM_STRING | MIIM_ID;
  info.dwTypeData = caption;
  info.cch = 256;
  GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
  return info;
}

}  // namespace

std::wstring MenuText(HMENU menu, int level) {
  std::wstring text;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    wchar_t caption[256] = L"";
    const MENUITEMINFOW info = Look(menu, i, caption);
    text.append(static_cast<std::size_t>(level) * 2, L' ');
    text += info.fType & MFT_SEPARATOR ? L"--------" : caption;
    if (info.hSubMenu) text += L" >";
    if (!(info.fType & MFT_SEPARATOR) && info.fState & MFS_DISABLED) text += L" (disabled)";
    text += L'\n';
    if (info.hSubMenu) text += MenuText(info.hSubMenu, level + 1);
  }
  return text;
}

int CountCommands(HMENU menu) {
  int commands = 0;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    wchar_t caption[256] = L"";
    const MENUITEMINFOW info = Look(menu, i, caption);
    if (info.hSubMenu) {
      commands += CountCommands(info.hSubMenu);
    } else if (!(info.fType & MFT_SEPARATOR)) {
      ++commands;
    }
  }
  return commands;
}

}  // namespace orvane::host
