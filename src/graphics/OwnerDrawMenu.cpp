#include "graphics/OwnerDrawMenu.h"

#include <utility>

#include "menudata/clsOrvaneDataTools.h"
#include "support/Trace.h"

namespace orvane {

IconFile IconFileOf(const Command& command) {
  const clsOrvaneData& record = *command.Record();
  return {record.Location(), !record.IsTypeFile(), command.IsFileName()};
}

void OwnerDrawMenu::ShellMenu(MenuHandle menu) {
  m_shellMenu = menu;
  m_painter.MenuOpens();
}

bool OwnerDrawMenu::AddMenuWithBitmap(MenuHandle menu, std::int32_t position, MenuItem item) {
  TraceScope scope(L"AddMenuWithBitmap");
  try {
    if (!Insert(menu, position, item)) return false;
    item.command.Submenu(item.submenu.release());
    return true;
  } catch (...) {
    scope.Caught();
    return false;
  }
}

bool OwnerDrawMenu::Insert(MenuHandle menu, std::int32_t position, MenuItem& item) {
  Log(L"lMenuCmdId=", item.command.Id(), L"  lBitmapKey=", static_cast<std::int32_t>(item.picture),
      L"  szCaption=", item.caption);
  MenuEntry entry;
  entry.id = static_cast<std::uint32_t>(item.command.Id());
  entry.submenu = item.submenu.get();
  entry.caption = std::move(item.caption);
  if (item.trimCaption)
    entry.caption =
        clsOrvaneDataTools::TrimCaption(std::move(entry.caption), m_options.m_lShellMaxMenuText);
  if (item.command.IsFileName() && entry.caption.find(L'&') != std::wstring::npos)
    entry.caption = DoubleAmpersands(entry.caption);

  const bool shown = IsShown(item.picture, m_options.m_lShellShowIcons);
  const Picture picture = item.picture == Picture::Designer ? Picture::Mark : item.picture;
  Log(L"bUseCheckMarks=", shown, L"  lBitmapKey=", static_cast<std::int32_t>(picture));
  entry.ownerDraw = m_options.m_bShellOwnerDraw && menu != m_shellMenu;
  if (entry.ownerDraw) Log(L"Marked as ownerdraw");
  Log(L"Use check marks=", shown);
  if (shown) AddPicture(item, picture, entry);
  return m_menus.Insert(menu, position, entry);
}

/// Of a long menu only what is on the screen is ever painted: a file's icon is fetched then.
void OwnerDrawMenu::AddPicture(const MenuItem& item, Picture picture, MenuEntry& entry) {
  clsCollection::Node& shown = item.command.Record()->m_oBitmap;
  if (picture == Picture::OwnIcon && entry.ownerDraw) {
    shown = item.iconFile ? PictureStore::IconToFetch(*item.iconFile) : m_pictures.IconToFetch();
    return;
  }
  clsCollection::Node found =
      picture == Picture::OwnIcon ? FindIcon(item) : m_pictures.Find(picture);
  if (!found) {
    Log(L"Bitmap not found!");
    return;
  }
  shown = std::move(found);
  entry.bitmap = entry.ownerDraw ? PictureStore::Full(shown) : PictureStore::CheckMark(shown);
  Log(L"ScaledBitmap=", Hex(shown->m_lData), L"  NormalBitmap=", Hex(shown->m_lData2));
  Log(L"Bitmap=", Hex(entry.bitmap));
}

PictureStore::Node OwnerDrawMenu::FindIcon(const MenuItem& item) {
  IconFile file = IconFileOf(item.command);
  if (item.iconFile) file.path = *item.iconFile;
  return m_pictures.FindIcon(file, m_painter.PictureSize(), true);
}

}  // namespace orvane
