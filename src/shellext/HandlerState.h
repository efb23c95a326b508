#pragma once

#include <cstdint>

#include "menudata/clsCollection.h"
#include "platform/Menus.h"
#include "shellext/CommandIds.h"
#include "shellext/Selection.h"

namespace orvane {

/// The fields of one handler that building, filling and dispatching share.
struct HandlerState {
  Selection selection;

  MenuHandle m_hMenu = MenuHandle::None;  // the shell's
  std::int32_t m_lMenuPosition = 0;       // where the next entry goes in it
  MenuHandle m_hRootMenu = MenuHandle::None;

  /// The command table: m_lKey the absolute command identifier (NoKey without a menu entry),
  /// m_oData the entry's record, m_lData its submenu.
  clsCollection m_colMenuItems;
  static constexpr std::int32_t NoKey = -1;

  /// The dynamic folders' submenus: m_lKey the submenu, m_oData the command table's node, m_lData 1
  /// once it is filled.
  clsCollection m_colDynamicMenus;

  clsCollection m_colBitmaps;
  CommandIds ids;                  // m_lMenuCmdId, m_lIdCmdFirst, m_lIdCmdLast, m_lDynamicCmdId
  std::int32_t m_lEmptyCmdId = 0;  // the placeholder of empty dynamic folders
  std::int32_t m_lNumWindowActions = 0;
};

}  // namespace orvane
