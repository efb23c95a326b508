#include "support/ThreadState.h"

namespace orvane {
namespace {
// A plain pointer: nothing has to run when a thread of the host ends or the DLL goes.
thread_local constinit ThreadState* t_state = nullptr;
}  // namespace

ThreadState* ThreadState::Current() {
  return t_state;
}

void ThreadState::SetCurrent(ThreadState* state) {
  t_state = state;
}

}  // namespace orvane
