#include "server/Module.h"

#include <atomic>

namespace orvane::server {
namespace {
constinit HINSTANCE g_handle = nullptr;
constinit std::atomic<long> g_locks = 0;
constinit bool g_processEnds = false;
}  // namespace

void Module::Handle(HINSTANCE handle) {
  g_handle = handle;
}
HINSTANCE Module::Handle() {
  return g_handle;
}

std::wstring Module::Path() {
  for (std::wstring path(MAX_PATH, L'\0');; path.resize(path.size() * 2)) {
    const DWORD length = GetModuleFileNameW(g_handle, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    if (path.size() > 65536) return {};
  }
}

void Module::Lock() {
  ++g_locks;
}
void Module::Unlock() {
  --g_locks;
}
bool Module::InUse() {
  return g_locks != 0;
}

void Module::Pin() {
  static constinit std::atomic<bool> isPinned = false;
  if (isPinned.exchange(true)) return;
  HMODULE pinned = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                     reinterpret_cast<const wchar_t*>(g_handle), &pinned);
}

void Module::ProcessEnds(bool ends) {
  g_processEnds = ends;
}
bool Module::ProcessEnds() {
  return g_processEnds;
}

}  // namespace orvane::server
