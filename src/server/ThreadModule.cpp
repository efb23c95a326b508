#include "server/ThreadModule.h"

#include <commctrl.h>

#include <utility>

#include "server/Module.h"

namespace orvane::server {
namespace {
// A plain pointer: nothing has to run when a thread of the host ends.
thread_local constinit ThreadModule* t_module = nullptr;
}  // namespace

ThreadModule::ThreadModule()
    : m_desktop(Module::Handle()),
      m_dialogs(Module::Handle()),
      m_globals(m_desktop.Bundle(m_dialogs)) {
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_PROGRESS_CLASS};
  InitCommonControlsEx(&controls);
}

ThreadModule& ThreadModule::Join() {
  if (!t_module) t_module = new ThreadModule;
  ++t_module->m_uses;
  return *t_module;
}

void ThreadModule::Leave() {
  if (--m_uses > 0) return;
  t_module = nullptr;
  delete this;
}

bool ThreadModule::IsOfThisThread() const {
  return this == t_module;
}

HANDLE ThreadModule::OpenThread() const {
  return ::OpenThread(SYNCHRONIZE, FALSE, m_thread);
}

ThreadModule::StandIn::StandIn(ThreadModule& ended)
    : m_ownModule(std::exchange(t_module, &ended)), m_ownState(ThreadState::Current()) {
  ThreadState::SetCurrent(&ended.m_globals.threadState);
}

ThreadModule::StandIn::~StandIn() {
  t_module = m_ownModule;
  ThreadState::SetCurrent(m_ownState);
}

}  // namespace orvane::server
