#pragma once

#include <cstdint>

#include "commands/Selection.h"
#include "customactions/clsCustomActions.h"
#include "menudata/CommandTable.h"
#include "menudata/clsMRU.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneDataTools.h"
#include "platform/Platform.h"
#include "support/CodePage.h"

namespace orvane {

/// What a command needs of the handler whose entry was chosen and of its thread's globals. Made for
/// one call; the selection is held by value, since a command may run the thread's messages and the
/// handler may be given another one meanwhile.
struct CommandContext {
  const Platform& platform;
  const CodePage& codePage;
  const ActionServices& actions;
  clsOptions& options;
  clsMRU& history;
  clsMRU& quickAccess;
  clsMRU& copyTo;
  const clsOrvaneDataTools& tools;
  const CommandTable& commands;  // of the menu
  std::int32_t firstId = 0;      // of the menu's identifiers
  std::int32_t windowActions = 0;
  Selection selection;
};

}  // namespace orvane
