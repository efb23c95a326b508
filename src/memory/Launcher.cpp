#include "memory/Launcher.h"

#include "support/FullPath.h"

namespace orvane::memory {
namespace {

constexpr std::int32_t Started = 42;  // any code above 32 is a success
constexpr std::int32_t OutOfMemory = 0;
constexpr auto NullPointer = static_cast<std::int32_t>(0x80004003);  // E_POINTER

}  // namespace

std::int32_t Launcher::Open(const Execution& execution) {
  if (m_faults.Hit()) return OutOfMemory;
  m_effects.Add(Effect("ShellExecute")
                    .With("verb", execution.verb)
                    .With("file", execution.file)
                    .With("parameters", execution.parameters)
                    .With("directory", execution.directory)
                    .With("show", std::int64_t{execution.show}));
  const auto failure = failures.find(execution.file);
  return failure == failures.end() ? Started : failure->second;
}

bool Launcher::OpenEx(const Execution& execution) {
  if (m_faults.Hit()) return false;
  m_effects.Add(Effect("ShellExecuteEx")
                    .With("verb", execution.verb)
                    .With("file", execution.file)
                    .With("parameters", execution.parameters)
                    .With("directory", execution.directory)
                    .With("show", std::int64_t{execution.show})
                    .With("class", execution.className)
                    .With("item", m_shell.Text(execution.item)));
  return !failures.contains(execution.file);
}

bool Launcher::Start(const std::wstring& program, const std::wstring& commandLine,
                     const std::wstring& directory) {
  if (m_faults.Hit() || !IsFullPath(program)) return false;
  if (failures.contains(program) || failures.contains(directory)) return false;
  m_effects.Add(Effect("CreateProcess").With("command", commandLine).With("directory", directory));
  return true;
}

std::intptr_t Launcher::Ask(WindowHandle window, std::uint32_t message) {
  const Windows::Window* found = m_windows.Look(window);
  if (!found || found->thread != Windows::OwnThread) return 0;
  return m_windows.Send(window, message, 0, 0, 0).value_or(0);
}

std::intptr_t Launcher::ShellBrowser(WindowHandle window) {
  return Ask(window, GetShellBrowser);
}

std::int32_t Launcher::BrowseObject(std::intptr_t shellBrowser, const ItemIdList& item) {
  if (m_faults.Hit() || shellBrowser == 0 || !item) return NullPointer;
  const auto failure = browserFailures.find(shellBrowser);
  if (failure != browserFailures.end()) return failure->second;
  m_effects.Add(Effect("BrowseObject").With("item", m_shell.Text(item)));
  return 0;
}

void Launcher::BrowsingDone(WindowHandle window) {
  Ask(window, BrowserMoved);
}

}  // namespace orvane::memory
