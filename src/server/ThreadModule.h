#pragma once

#include <windows.h>

#include "server/Dialogs.h"
#include "shellext/ModuleGlobals.h"
#include "win32/Desktop.h"

namespace orvane::server {

/// One thread's desktop and module globals: made with its first handler, gone with its last.
class ThreadModule {
 public:
  ThreadModule(const ThreadModule&) = delete;
  ThreadModule& operator=(const ThreadModule&) = delete;

  /// The calling thread's, made when it has none; `Leave` once for each `Join`.
  static ThreadModule& Join();
  /// Only in its own thread, or in one that stands in for it.
  void Leave();

  bool IsOfThisThread() const;
  /// A handle to wait for the thread's end with; null when it has ended.
  HANDLE OpenThread() const;
  /// How many have joined and not left. Like all here the thread's own business while it lives.
  int Uses() const { return m_uses; }
  ModuleGlobals& Globals() { return m_globals; }

  /// Has the calling thread take the place of an ended one.
  class StandIn {
   public:
    explicit StandIn(ThreadModule& ended);
    ~StandIn();
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

   private:
    ThreadModule* m_ownModule;
    ThreadState* m_ownState;
  };

  bool m_isStoodInFor = false;  // changed by ThreadBound alone, under its lock

 private:
  ThreadModule();
  ~ThreadModule() = default;

  win32::Desktop m_desktop;
  Dialogs m_dialogs;
  ModuleGlobals m_globals;
  const DWORD m_thread = GetCurrentThreadId();
  int m_uses = 0;
};

}  // namespace orvane::server
