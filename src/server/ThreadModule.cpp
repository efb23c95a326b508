#include "server/ThreadModule.h"

#include <windows.h>

#include <commctrl.h>

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

ThreadModule::Use::Use() {
  if (!t_module) t_module = new ThreadModule;
  m_module = t_module;
  ++m_module->m_uses;
}

ThreadModule::Use::~Use() {
  if (--m_module->m_uses > 0) return;
  if (t_module == m_module) t_module = nullptr;
  delete m_module;
}

}  // namespace orvane::server
