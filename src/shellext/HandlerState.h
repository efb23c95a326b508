#pragma once

#include <cstdint>

#include "commands/Selection.h"
#include "graphics/PictureStore.h"
#include "menudata/CommandTable.h"
#include "platform/Menus.h"
#include "shellext/CommandIds.h"
#include "shellext/DynamicMenus.h"

namespace orvane {

/// The fields of one handler that building, filling and dispatching share.
struct HandlerState {
  HandlerState(Gdi& gdi, ShellIcons& icons, FileReader& files) : pictures(gdi, icons, files) {}

  Patience patience = Patience::Menu;  // for all that is read until the menu is built
  Selection selection;

  MenuHandle shellMenu = MenuHandle::None;  // the shell's
  std::int32_t menuPosition = 0;            // where the next entry goes in it
  MenuHandle rootMenu = MenuHandle::None;

  CommandTable commands;
  DynamicMenus dynamicMenus;
  PictureStore pictures;
  CommandIds ids;
  std::int32_t emptyId = 0;     // the placeholder of empty dynamic folders
  std::int32_t noAnswerId = 0;  // that of folders that did not answer; 0 until there is one
  std::int32_t windowActions = 0;
};

}  // namespace orvane
