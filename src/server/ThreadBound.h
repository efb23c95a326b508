#pragma once

#include <windows.h>

#include "server/ThreadModule.h"
#include "win32/UniqueHandle.h"

namespace orvane::server {

/// An object that shares its thread's module and hence ends in that thread, whichever thread lets
/// go of it last: released elsewhere it waits for the thread's next handler, or for the thread's
/// end. Allocated with new.
class ThreadBound {
 public:
  ThreadBound(const ThreadBound&) = delete;
  ThreadBound& operator=(const ThreadBound&) = delete;

 protected:
  /// Also ends what waits for the calling thread.
  ThreadBound();
  virtual ~ThreadBound();

  ModuleGlobals& Globals() const { return m_module.Globals(); }

  /// Destroys the object, now or when it is time.
  void End() noexcept;

 private:
  static void EndWaiting() noexcept;
  static ThreadBound* TakeWaiting() noexcept;
  bool CanEndHere() const;

  ThreadModule& m_module;
  win32::UniqueKernelHandle m_thread;  // while it waits: the thread, none when that has ended
  ThreadBound* m_nextWaiting = nullptr;
};

}  // namespace orvane::server
