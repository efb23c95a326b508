#include "shellext/ModuleGlobals.h"

#include "platform/SystemInfo.h"

namespace orvane {

ModuleGlobals::ModuleGlobals(const Platform& platform)
    : platform(platform),
      codePage(platform.system.AnsiCharacters()),
      g_Debug(platform.files, platform.boxes, platform.clock, platform.locale, platform.tcp,
              codePage),
      g_Timing(platform.files, platform.boxes, platform.clock, platform.locale, platform.tcp,
               codePage),
      threadState{&g_Debug, &g_Timing, {}},
      g_HistoryMRU(platform.registry),
      g_QuickAccessMRU(platform.registry),
      g_CopyToMRU(platform.registry),
      tools(g_Options, g_Debug, platform.shell),
      g_oProcess(platform.processes, platform.system),
      actionServices{platform.files,  platform.profiles, platform.windows,
                     g_oProcess,      platform.keyboard, platform.clock,
                     platform.locale, platform.boxes,    codePage} {
  ThreadState::SetCurrent(&threadState);
}

ModuleGlobals::~ModuleGlobals() {
  ThreadState::SetCurrent(nullptr);
}

}  // namespace orvane
