#pragma once

#include "support/Error.h"

namespace orvane {

class clsTrace;

/// What every routine of a thread may reach without being handed it: the two traces and the pending
/// error. Lives with the thread's module globals, from the first handler to the last.
struct ThreadState {
  clsTrace* debug = nullptr;   // the log
  clsTrace* timing = nullptr;  // times only
  PendingError pending;

  /// The calling thread's state; null while it has no handler.
  static ThreadState* Current();
  static void SetCurrent(ThreadState* state);
};

}  // namespace orvane
