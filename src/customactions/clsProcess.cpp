#include "customactions/clsProcess.h"

#include <utility>

#include "support/Error.h"
#include "support/Trace.h"

namespace orvane {

clsProcess::Strategy clsProcess::GetPlatform() {
  return static_cast<Strategy>(m_system.OsVersion().platform);
}

std::uint32_t clsProcess::GetProcessIdViaHwnd(WindowHandle hWnd) {
  TraceScope scope(L"GetProcessIdViaHwnd");
  Log(L"hWnd=", Hex(hWnd));
  return m_processes.OwnerOf(hWnd).process;
}

std::wstring clsProcess::GetExeViaHwnd(WindowHandle hWnd) {
  TraceScope scope(L"GetExeViaHwnd");
  std::wstring name, path;
  const std::uint32_t process = GetProcessIdViaHwnd(hWnd);
  if (process != 0) GetNamesViaId(process, name, path);
  Log(L"hWnd=", Hex(hWnd), L"  GetExeViaHwnd=", path);
  return path;
}

std::optional<Processes::Module> clsProcess::FindModule(std::uint32_t lProcessId,
                                                        std::uint32_t lModuleId) {
  for (Processes::Module& module : m_processes.ModuleSnapshot(lProcessId)) {
    if (module.module == lModuleId) return std::move(module);
  }
  return {};
}

bool clsProcess::GetNamesViaId(std::uint32_t lProcessId, std::wstring& szExeName,
                               std::wstring& szExePath) {
  TraceScope scope(L"GetNamesViaId");
  Log(L"lProcessId=", Hex(static_cast<std::int32_t>(lProcessId)));
  switch (GetPlatform()) {
    case Strategy::ToolHelp:
      for (const Processes::Entry& entry : m_processes.ProcessSnapshot()) {
        if (entry.process != lProcessId) continue;
        const auto module = FindModule(lProcessId, entry.module);
        if (!module) continue;
        szExeName = module->name;
        szExePath = module->path;
        return true;
      }
      return false;
    case Strategy::Identifiers: {
      std::wstring path = m_processes.Executable(lProcessId);
      if (path.empty()) return false;
      szExeName.clear();
      szExePath = std::move(path);
      return true;
    }
  }
  return false;
}

std::int32_t clsProcess::GetExeList(std::vector<std::wstring>& szExes) {
  TraceScope scope(L"GetExeList");
  szExes.clear();
  switch (GetPlatform()) {
    case Strategy::ToolHelp:
      for (Processes::Entry& entry : m_processes.ProcessSnapshot()) {
        if (!FindModule(entry.process, entry.module)) continue;
        // The system's own entries are no programs.
        if (entry.file.starts_with(L'[') || entry.file == L"System") continue;
        szExes.push_back(std::move(entry.file));
      }
      break;
    case Strategy::Identifiers:
      for (const std::uint32_t process : m_processes.Ids()) {
        std::wstring path = m_processes.Executable(process);
        if (!path.empty()) szExes.push_back(std::move(path));
      }
      break;
  }
  return static_cast<std::int32_t>(szExes.size());
}

bool clsProcess::CloseProcess(std::uint32_t lProcessId) {
  TraceScope scope(L"CloseProcess");
  Log(L"lProcessId=", Hex(static_cast<std::int32_t>(lProcessId)));
  const std::vector<std::uint32_t> threads = m_processes.ThreadSnapshot(lProcessId);
  for (const std::uint32_t thread : threads) m_processes.PostQuit(thread);
  return !threads.empty();
}

std::int32_t clsProcess::GetProcesses(std::vector<std::uint32_t>& lProcessIds) {
  TraceScope scope(L"GetProcesses");
  lProcessIds.assign(1, 0);
  if (GetPlatform() == Strategy::Identifiers) {
    const std::vector<std::uint32_t> ids = m_processes.Ids();
    lProcessIds.insert(lProcessIds.end(), ids.begin(), ids.end());
  }
  return static_cast<std::int32_t>(lProcessIds.size() - 1);
}

void GetWindowClassAndCaption(Windows& windows, WindowHandle hWnd, std::wstring& szClass,
                              std::wstring& szCaption) {
  TraceScope scope(L"GetWindowClassAndCaption");
  Log(L"hWnd=", Hex(hWnd));
  szClass = windows.ClassName(hWnd);
  szCaption = windows.Caption(hWnd);
}

void ActivateWindowProcess(Processes& processes, WindowHandle hWnd) {
  TraceScope scope(L"ActivateWindowProcess");
  const Processes::WindowOwner owner = processes.OwnerOf(hWnd);
  Log(L"lThreadId=", Hex(static_cast<std::int32_t>(owner.thread)), L"  lProcessId=",
      Hex(static_cast<std::int32_t>(owner.process)));
  if (owner.process == 0 || !processes.Activate(owner.process))
    throw Error(Error::InvalidArgument, L"The window's application cannot be activated",
                L"ActivateWindowProcess");
}

}  // namespace orvane
