#pragma once

#include <cstdint>

#include "graphics/PictureStore.h"
#include "menudata/CommandTable.h"
#include "platform/Menus.h"
#include "shellext/CommandIds.h"
#include "shellext/DynamicMenus.h"
#include "shellext/Selection.h"

namespace orvane {

/// The fields of one handler that building, filling and dispatching share.
struct HandlerState {
  HandlerState(Gdi& gdi, ShellIcons& icons, FileReader& files) : pictures(gdi, icons, files) {}

  Selection selection;

  MenuHandle m_hMenu = MenuHandle::None;  // the shell's
  std::int32_t m_lMenuPosition = 0;       // where the next entry goes in it
  MenuHandle m_hRootMenu = MenuHandle::None;

  CommandTable commands;
  DynamicMenus dynamicMenus;
  PictureStore pictures;
  CommandIds ids;                     // m_lMenuCmdId, m_lIdCmdFirst, m_lIdCmdLast, m_lDynamicCmdId
  std::int32_t m_lEmptyCmdId = 0;     // the placeholder of empty dynamic folders
  std::int32_t m_lNoAnswerCmdId = 0;  // that of folders that did not answer; 0 until there is one
  std::int32_t m_lNumWindowActions = 0;
};

}  // namespace orvane
