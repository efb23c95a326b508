#pragma once

#include <cstdint>
#include <string>

#include "customactions/clsCustomActions.h"
#include "customactions/clsProcess.h"
#include "menudata/clsMRU.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneDataTools.h"
#include "platform/Platform.h"
#include "support/CodePage.h"
#include "support/ThreadState.h"
#include "support/clsTrace.h"

namespace orvane {

/// The module's globals of one thread: settings, lists and traces that its handlers share. Made
/// with the thread's first handler, gone with its last.
struct ModuleGlobals {
  explicit ModuleGlobals(const Platform& platform);
  ~ModuleGlobals();
  ModuleGlobals(const ModuleGlobals&) = delete;
  ModuleGlobals& operator=(const ModuleGlobals&) = delete;

  Platform platform;
  CodePage codePage;
  clsTrace g_Debug;
  clsTrace g_Timing;
  ThreadState threadState;  // what the thread's routines see of the traces
  clsOptions g_Options;
  clsMRU g_HistoryMRU;
  clsMRU g_QuickAccessMRU;
  clsMRU g_CopyToMRU;
  clsOrvaneDataTools tools;
  clsProcess g_oProcess;
  ActionServices actionServices;
  std::int32_t g_lReferenceCount = 0;  // live handlers
  std::wstring g_szRootMenuCaption;
};

}  // namespace orvane
