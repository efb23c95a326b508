#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>

#include "graphics/IconStore.h"
#include "graphics/MenuItemLookup.h"
#include "graphics/MenuItemMessages.h"
#include "graphics/MenuPainter.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneData.h"
#include "platform/FileSystem.h"
#include "platform/Gdi.h"
#include "platform/Menus.h"
#include "platform/ShellIcons.h"

namespace orvane {

/// One entry on its way into a menu.
struct NewMenuItem {
  MenuHandle menu = MenuHandle::None;
  std::int32_t position = Menus::Append;
  std::wstring caption;
  std::int32_t id = 0;
  std::int32_t bitmapKey = 0;  // 1 to 9, OwnIcon, DesignerIcon; anything else is no picture
  std::optional<std::wstring> iconFile = {};  // whose icon OwnIcon means, else the record's place
  bool trimCaption = false;
  bool fileName = false;  // the caption is the name of a file or folder that is there, and marks no
                          // letter with "&"
  MenuHandle submenu = MenuHandle::None;
  clsOrvaneData* record = nullptr;  // remembers the picture
};

/// Inserts entries with their pictures and paints those that the desktop leaves to us. One for each
/// handler, whose bitmap store it fills and whose entries it looks up by identifier.
class OwnerDrawMenu {
 public:
  static constexpr std::int32_t OwnIcon = 999999;       // the shell icon of the entry's file
  static constexpr std::int32_t DesignerIcon = 999998;  // bitmap 1, from the medium icon level on

  /// All are kept and outlive the object.
  OwnerDrawMenu(const clsOptions& options, Menus& menus, Gdi& gdi, ShellIcons& icons,
                FileReader& files, clsCollection& bitmaps, MenuItemLookup& lookup);

  /// Starts a new menu. Entries placed directly in the shell's menu are never owner-drawn.
  void ShellMenu(MenuHandle menu);

  /// False when the desktop refused the entry.
  bool AddMenuWithBitmap(NewMenuItem item);

  /// The picture to paint beside the record's entry, None without one. A file's icon is fetched
  /// here the first time: of a long menu only what is on the screen is ever painted.
  BitmapHandle Picture(clsOrvaneData& record);

  /// Measures (lParam: address of a MeasureItem) or paints (of a DrawItem) one entry. False for
  /// what it does not handle: other messages, WM_DRAWITEM with a wParam, a null address.
  bool HandleMessage(std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam);

 private:
  bool Insert(NewMenuItem& item);
  void AddPicture(const NewMenuItem& item, std::int32_t key, MenuEntry& entry);
  void Measure(MeasureItem& item);
  void Draw(const DrawItem& item);

  const clsOptions& m_options;
  Menus& m_menus;
  clsCollection& m_bitmaps;
  MenuItemLookup& m_lookup;
  IconStore m_icons;
  MenuPainter m_painter;
  MenuHandle m_shellMenu = MenuHandle::None;
  std::unordered_set<std::int32_t> m_fileNames;  // entries whose caption holds "&" as a letter
};

}  // namespace orvane
