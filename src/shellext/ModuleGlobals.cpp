#include "shellext/ModuleGlobals.h"

#include "platform/SystemInfo.h"

namespace orvane {

ModuleGlobals::ModuleGlobals(const Platform& platform)
    : platform(platform),
      codePage(platform.system.AnsiCharacters()),
      debug(platform.files, platform.boxes, platform.clock, platform.locale, platform.tcp,
            codePage),
      timing(platform.files, platform.boxes, platform.clock, platform.locale, platform.tcp,
             codePage),
      threadState{&debug, &timing, {}},
      history(platform.registry),
      quickAccess(platform.registry),
      copyTo(platform.registry),
      tools(options, codePage, scrambler, platform.shell),
      process(platform.processes, platform.system),
      actionServices{platform.files,  platform.profiles, platform.windows,
                     process,         platform.keyboard, platform.clock,
                     platform.locale, platform.boxes,    codePage} {
  ThreadState::SetCurrent(&threadState);
}

ModuleGlobals::~ModuleGlobals() {
  ThreadState::SetCurrent(nullptr);
}

}  // namespace orvane
