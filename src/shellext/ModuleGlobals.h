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
#include "support/Scrambler.h"
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
  clsTrace debug;
  clsTrace timing;
  ThreadState threadState;  // what the thread's routines see of the traces
  clsOptions options;
  clsMRU history;
  clsMRU quickAccess;
  clsMRU copyTo;
  Scrambler scrambler;
  clsOrvaneDataTools tools;
  clsProcess process;
  ActionServices actionServices;
  std::int32_t handlers = 0;  // live handlers
  std::wstring rootCaption;
};

}  // namespace orvane
