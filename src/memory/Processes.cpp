#include "memory/Processes.h"

#include <algorithm>

namespace orvane::memory {
namespace {

constexpr std::uint32_t ModuleBase = 0x1000;  // a program's own module is this plus its identifier
constexpr std::uint32_t Quit = 18;            // WM_QUIT

}  // namespace

const Processes::Process* Processes::Find(std::uint32_t id) {
  const auto found = std::ranges::find(running, id, &Process::id);
  return found == running.end() || !found->canBeOpened ? nullptr : &*found;
}

std::vector<std::uint32_t> Processes::Ids() {
  std::vector<std::uint32_t> ids;
  if (m_faults.Hit()) return ids;
  for (const Process& process : running) ids.push_back(process.id);
  return ids;
}

std::wstring Processes::Executable(std::uint32_t process) {
  const Process* found = m_faults.Hit() ? nullptr : Find(process);
  return found ? found->executable : std::wstring();
}

std::vector<Processes::Entry> Processes::ProcessSnapshot() {
  std::vector<Entry> entries;
  if (m_faults.Hit()) return entries;
  for (const Process& process : running) {
    entries.push_back({process.id, ModuleBase + process.id,
                       process.file.empty() ? process.executable : process.file});
  }
  return entries;
}

std::vector<Processes::Module> Processes::ModuleSnapshot(std::uint32_t process) {
  const Process* found = m_faults.Hit() ? nullptr : Find(process);
  if (!found) return {};
  const std::wstring& path = found->executable;
  return {{ModuleBase + process, path.substr(path.rfind(L'\\') + 1), path}};
}

std::vector<std::uint32_t> Processes::ThreadSnapshot(std::uint32_t process) {
  const auto found = std::ranges::find(running, process, &Process::id);
  if (m_faults.Hit() || found == running.end()) return {};
  return found->threads;
}

bool Processes::PostQuit(std::uint32_t thread) {
  const bool exists = std::ranges::any_of(running, [&](const Process& process) {
    return std::ranges::find(process.threads, thread) != process.threads.end();
  });
  if (m_faults.Hit() || !exists) return false;
  m_effects.Add(Effect("PostThreadMessage")
                    .With("thread", std::int64_t{thread})
                    .With("message", std::int64_t{Quit}));
  return true;
}

Processes::WindowOwner Processes::OwnerOf(WindowHandle window) {
  const Windows::Window* found = m_faults.Hit() ? nullptr : m_windows.Look(window);
  return found ? WindowOwner{found->process, found->thread} : WindowOwner{};
}

bool Processes::Activate(std::uint32_t process) {
  if (m_faults.Hit()) return false;
  const Windows::Window* active = m_windows.Look(m_windows.Active());
  if (active && active->process == process) return true;
  const WindowHandle top = m_windows.TopWindowOf(process);
  if (top == WindowHandle::None) return false;
  m_windows.Activate(top);
  return true;
}

}  // namespace orvane::memory
