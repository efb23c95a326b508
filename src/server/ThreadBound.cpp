#include "server/ThreadBound.h"

namespace orvane::server {
namespace {

// The module's one lock, held for a few steps of the list. Only objects that a host releases
// against the rules of their apartment ever stand in it.
constinit SRWLOCK g_lock = SRWLOCK_INIT;
constinit ThreadBound* g_waiting = nullptr;

class Locked {
 public:
  Locked() { AcquireSRWLockExclusive(&g_lock); }
  ~Locked() { ReleaseSRWLockExclusive(&g_lock); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;
};

}  // namespace

ThreadBound::ThreadBound() : m_module(ThreadModule::Join()) {
  EndWaiting();
}

ThreadBound::~ThreadBound() {
  m_module.Leave();
}

void ThreadBound::End() noexcept {
  if (m_module.IsOfThisThread()) {
    delete this;
  } else {
    m_thread.reset(m_module.OpenThread());
    const Locked locked;
    m_nextWaiting = g_waiting;
    g_waiting = this;
  }
  EndWaiting();
}

bool ThreadBound::CanEndHere() const {
  if (m_module.IsOfThisThread()) return true;
  // Of two threads that find an ended one's objects only one may touch what those share.
  const bool hasEnded = !m_thread || WaitForSingleObject(m_thread.get(), 0) == WAIT_OBJECT_0;
  return hasEnded && !m_module.m_isStoodInFor;
}

/// Takes an object off the list whose time has come; null without any.
ThreadBound* ThreadBound::TakeWaiting() noexcept {
  const Locked locked;
  for (ThreadBound** link = &g_waiting; *link; link = &(*link)->m_nextWaiting) {
    ThreadBound* object = *link;
    if (!object->CanEndHere()) continue;
    *link = object->m_nextWaiting;
    if (!object->m_module.IsOfThisThread()) object->m_module.m_isStoodInFor = true;
    return object;
  }
  return nullptr;
}

void ThreadBound::EndWaiting() noexcept {
  while (ThreadBound* object = TakeWaiting()) {
    ThreadModule& module = object->m_module;
    if (module.IsOfThisThread()) {
      delete object;
      continue;
    }
    const bool isLast = module.Uses() == 1;
    {
      const ThreadModule::StandIn standIn(module);
      delete object;
    }
    if (isLast) continue;
    const Locked locked;
    module.m_isStoodInFor = false;
  }
}

}  // namespace orvane::server
