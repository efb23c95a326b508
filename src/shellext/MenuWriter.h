#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "graphics/OwnerDrawMenu.h"
#include "menudata/clsOrvaneData.h"
#include "platform/Menus.h"
#include "shellext/HandlerState.h"
#include "shellext/ModuleGlobals.h"

namespace orvane {

/// Puts single items into a menu and into the command table.
class MenuWriter {
 public:
  // Bitmap keys beside 1 to 9, the loaded bitmaps.
  static constexpr std::int32_t NoBitmap = 0;
  static constexpr std::int32_t CurrentFolderBitmap = 2;
  static constexpr std::int32_t ResetBitmap = 3;
  static constexpr std::int32_t OwnFolderBitmap = 4;
  static constexpr std::int32_t AddBitmap = 5;
  static constexpr std::int32_t ActionBitmap = 7;
  static constexpr std::int32_t TaskBitmap = 8;
  static constexpr std::int32_t DesignerBitmap = 999998;
  static constexpr std::int32_t OwnIcon = 999999;  // the shell icon of the item's file

  /// Where entries go: one after the other at `position`, or at the end without one.
  struct Target {
    MenuHandle menu = MenuHandle::None;
    std::int32_t* position = nullptr;
  };

  /// One item on its way into a menu.
  struct Item {
    clsCollection::Node node;  // of the command table
    std::wstring caption;
    std::int32_t bitmapKey = NoBitmap;
    std::optional<std::wstring> iconFile = {};  // unless the record's own place
    bool trimCaption = false;
    bool fileName = false;  // the caption is a name, in which "&" marks no letter
    UniqueMenu submenu = {};
  };

  MenuWriter(ModuleGlobals& globals, HandlerState& state, OwnerDrawMenu& drawing)
      : m_globals(globals), m_state(state), m_drawing(drawing) {}

  /// False, and a line in the log, once the shell's identifiers are used up.
  bool CanInsert() const;

  /// A node of the command table for the record, not in any menu yet.
  clsCollection::Node AddNode(std::shared_ptr<clsOrvaneData> record);

  /// Inserts the item, with the next identifier if its node has none yet. A submenu then belongs to
  /// the menu, and its handle stands in the node; when the desktop refuses the entry the submenu is
  /// destroyed.
  bool Insert(const Target& target, Item item);

  /// A built-in command or submenu: a fresh record with its own caption.
  bool InsertBuiltIn(const Target& target, std::int32_t type, std::int32_t bitmapKey,
                     UniqueMenu submenu = {});

  /// Gives the item an empty submenu.
  void AddSubmenu(Item& item);

  /// A dynamic folder: the item with its empty submenu, which is filled when it opens.
  bool InsertDynamicFolder(const Target& target, Item item);

  /// The disabled "(Empty)" entry of a submenu that is not filled yet.
  void AppendPlaceholder(MenuHandle submenu);

  void InsertSeparator(const Target& target);
  bool HasEntries(MenuHandle menu) const;

  /// An empty popup menu. Error 7 when the desktop has none left.
  UniqueMenu CreatePopup();

  /// Bitmap key and icon file of a folder item: a mark of its own when it is the folder that the
  /// menu is for. Error 13 or 6 when a special folder's number is none.
  void DressFolder(const clsOrvaneData& record, Item& item);

  std::wstring Caption(const clsOrvaneData& record) const;

 private:
  std::int32_t NextPosition(const Target& target) const;
  bool IsCurrentFolder(const clsOrvaneData& record) const;

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  OwnerDrawMenu& m_drawing;
};

}  // namespace orvane
