#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "customactions/clsCustomActions.h"
#include "menudata/CommandTable.h"
#include "menudata/clsMRU.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneDataTools.h"
#include "platform/DataObject.h"
#include "platform/Platform.h"
#include "support/CodePage.h"

namespace orvane {

/// What a command needs of the handler whose entry was chosen and of its thread's globals. Made for
/// one call; the handler's own texts and selection are held by value, since a command may run the
/// thread's messages and the handler may be given another selection meanwhile.
struct CommandContext {
  const Platform& platform;
  const CodePage& codePage;
  const ActionServices& actions;
  clsOptions& g_Options;
  clsMRU& g_HistoryMRU;
  clsMRU& g_QuickAccessMRU;
  clsMRU& g_CopyToMRU;
  const clsOrvaneDataTools& tools;

  const CommandTable& commands;  // of the menu
  std::int32_t m_lIdCmdFirst = 0;
  std::shared_ptr<DataObject> m_pDataObject;  // null without a selection
  std::wstring m_szSelectedItem;
  std::wstring CurrentFolder;
  std::wstring CurrentFile;
  std::int32_t m_lNumWindowActions = 0;
};

}  // namespace orvane
