#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "graphics/MenuPainter.h"
#include "graphics/PictureStore.h"
#include "menudata/CommandTable.h"
#include "menudata/clsOptions.h"
#include "platform/Menus.h"

namespace orvane {

/// One item on its way into a menu.
struct MenuItem {
  Command command;  // with its identifier and record
  std::wstring caption;
  Picture picture = Picture::None;
  std::optional<std::wstring> iconFile = {};  // whose icon OwnIcon means, else the record's place
  bool trimCaption = false;
  UniqueMenu submenu = {};
};

/// The file whose icon an item shows as its own.
IconFile IconFileOf(const Command& command);

/// Inserts entries with their pictures.
class OwnerDrawMenu {
 public:
  /// All are kept and outlive the object.
  OwnerDrawMenu(const clsOptions& options, Menus& menus, PictureStore& pictures,
                MenuPainter& painter)
      : m_options(options), m_menus(menus), m_pictures(pictures), m_painter(painter) {}

  /// Starts a new menu. Entries placed directly in the shell's menu are never owner-drawn.
  void ShellMenu(MenuHandle menu);

  /// False when the desktop refused the entry; its submenu is then destroyed, and otherwise belongs
  /// to the menu and stands in the command.
  bool AddMenuWithBitmap(MenuHandle menu, std::int32_t position, MenuItem item);

 private:
  bool Insert(MenuHandle menu, std::int32_t position, MenuItem& item);
  void AddPicture(const MenuItem& item, Picture picture, MenuEntry& entry);
  PictureStore::Node FindIcon(const MenuItem& item);

  const clsOptions& m_options;
  Menus& m_menus;
  PictureStore& m_pictures;
  MenuPainter& m_painter;
  MenuHandle m_shellMenu = MenuHandle::None;
};

}  // namespace orvane
