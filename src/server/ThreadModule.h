#pragma once

#include "server/Dialogs.h"
#include "shellext/ModuleGlobals.h"
#include "win32/Desktop.h"

namespace orvane::server {

/// The calling thread's desktop and module globals: made with its first handler, gone with its
/// last. Each handler holds a Use.
class ThreadModule {
 public:
  class Use {
   public:
    Use();
    ~Use();
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

    ModuleGlobals& Globals() const { return m_module->m_globals; }

   private:
    ThreadModule* m_module;
  };

 private:
  ThreadModule();
  ~ThreadModule() = default;

  win32::Desktop m_desktop;
  Dialogs m_dialogs;
  ModuleGlobals m_globals;
  int m_uses = 0;
};

}  // namespace orvane::server
