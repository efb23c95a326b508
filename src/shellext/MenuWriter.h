#pragma once

#include <cstdint>
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
  /// Where entries go: one after the other at `position`, or at the end without one.
  struct Target {
    MenuHandle menu = MenuHandle::None;
    std::int32_t* position = nullptr;
  };

  MenuWriter(ModuleGlobals& globals, HandlerState& state, OwnerDrawMenu& drawing)
      : m_globals(globals), m_state(state), m_drawing(drawing) {}

  /// False, and a line in the log, once the shell's identifiers are used up.
  bool CanInsert() const;

  /// Inserts the item, with the next identifier if it has none yet. False when the desktop refuses
  /// the entry.
  bool Insert(const Target& target, MenuItem item);

  /// A built-in command or submenu: a fresh record with its own caption.
  bool InsertBuiltIn(const Target& target, std::int32_t type, Picture picture,
                     UniqueMenu submenu = {});

  /// Gives the item an empty submenu.
  void AddSubmenu(MenuItem& item);

  /// A dynamic folder: the item with its empty submenu, which is filled when it opens.
  bool InsertDynamicFolder(const Target& target, MenuItem item);

  /// The disabled entry of a submenu that is not filled yet: "(Empty)", or that there was no
  /// answer.
  void AppendPlaceholder(MenuHandle submenu,
                         std::int32_t type = clsOrvaneData::TypeDynamicFolderEmpty);

  void InsertSeparator(const Target& target);
  bool HasEntries(MenuHandle menu) const;

  /// An empty popup menu. Error 7 when the desktop has none left.
  UniqueMenu CreatePopup();

  /// Picture and icon file of a folder item: a mark of its own when it is the folder that the
  /// menu is for. Error 13 or 6 when a special folder's number is none.
  void DressFolder(const clsOrvaneData& record, MenuItem& item);

  std::wstring Caption(const clsOrvaneData& record) const;

 private:
  std::int32_t NextPosition(const Target& target) const;
  bool IsCurrentFolder(const clsOrvaneData& record) const;

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  OwnerDrawMenu& m_drawing;
};

}  // namespace orvane
