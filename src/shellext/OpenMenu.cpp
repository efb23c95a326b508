#include "shellext/OpenMenu.h"

#include "platform/Menus.h"
#include "shellext/MenuKeys.h"
#include "support/Trace.h"

namespace orvane {

std::optional<Size> OpenMenu::Measure(std::int32_t id) noexcept {
  TraceScope scope(L"OwnerDrawMenu");
  try {
    return m_painter.Measure(OwnerDrawMenu_GetCaption(id), IsFileName(id));
  } catch (...) {
    scope.Caught();
    return {};
  }
}

void OpenMenu::Draw(const DrawItem& item) noexcept {
  TraceScope scope(L"OwnerDrawMenu");
  try {
    Log(L"DrawInfo.itemState=", Hex(static_cast<std::int32_t>(item.state)));
    const BitmapHandle picture = OwnerDrawMenu_HasBitmap(item.id);
    m_painter.Draw(item, OwnerDrawMenu_GetCaption(item.id), IsFileName(item.id), picture);
  } catch (...) {
    scope.Caught();
  }
}

void OpenMenu::Open(MenuHandle submenu) noexcept {
  try {
    m_painter.MenuOpens();
    m_folders.Open(submenu);
  } catch (...) {
    const PendingError error = CaughtError();
    Log(L"Error: ", error.number, L" - ", error.description);
  }
}

std::intptr_t OpenMenu::Type(MenuHandle submenu, wchar_t character) noexcept {
  try {
    return IsOurs(submenu) ? AnswerMenuChar(m_globals.platform.menus, submenu, character) : 0;
  } catch (...) {
    const PendingError error = CaughtError();
    Log(L"Error: ", error.number, L" - ", error.description);
    return 0;
  }
}

bool OpenMenu::IsOurs(MenuHandle submenu) const {
  if (submenu == MenuHandle::None) return false;
  if (submenu == m_state.rootMenu) return true;
  for (std::int32_t i = 1; i <= m_state.commands.Count(); ++i)
    if (m_state.commands.At(i).Submenu() == submenu) return true;
  return false;
}

std::wstring OpenMenu::OwnerDrawMenu_GetCaption(std::int32_t lId) {
  TraceScope scope(L"OwnerDrawMenu_GetCaption");
  const Command command = Find(lId);
  if (!command) return {};
  Log(L"m_lType=", command.Record()->m_lType);
  bool trim = false;
  std::wstring caption = m_globals.tools.GetMenuCaption(*command.Record(), trim);
  Log(L"Caption=", caption);
  return caption;
}

BitmapHandle OpenMenu::OwnerDrawMenu_HasBitmap(std::int32_t lId) {
  TraceScope scope(L"OwnerDrawMenu_HasBitmap");
  const Command command = Find(lId);
  if (!command) return BitmapHandle::None;
  PictureStore::Node& picture = command.Record()->m_oBitmap;
  m_state.pictures.Fetch(picture, IconFileOf(command), m_painter.PictureSize());
  const BitmapHandle bitmap = PictureStore::Full(picture);
  if (bitmap == BitmapHandle::None)
    Log(L"Bitmap not found!");
  else
    Log(L"Bitmap=", Hex(bitmap));
  return bitmap;
}

Command OpenMenu::Find(std::int32_t lId) const {
  Log(L"lID=", lId);
  Command command = m_state.commands.Find(lId);
  if (!command) Log(L"Entry not found!");
  return command;
}

bool OpenMenu::IsFileName(std::int32_t id) const {
  const Command command = m_state.commands.Find(id);
  return command && command.IsFileName();
}

}  // namespace orvane
