#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Processes.h"
#include "platform/SystemInfo.h"
#include "platform/Windows.h"

namespace orvane {

/// Which program a window belongs to, and which programs run. Two ways of asking, chosen by the
/// system's platform number: tool-help walks (1) and process identifiers (2). On any other platform
/// nothing is found. Nothing is kept between calls.
class clsProcess {
 public:
  clsProcess(Processes& processes, SystemInfo& system) : m_processes(processes), m_system(system) {}

  /// 0 for what is no window.
  std::uint32_t GetProcessIdViaHwnd(WindowHandle hWnd);

  /// Full path of the executable that owns the window; empty when it cannot be had.
  std::wstring GetExeViaHwnd(WindowHandle hWnd);

  /// Name (tool-help only, else empty) and full path of a process's executable; untouched when the
  /// process is not found.
  bool GetNamesViaId(std::uint32_t lProcessId, std::wstring& szExeName, std::wstring& szExePath);

  /// Full paths of the running processes' executables; the result is their number.
  std::int32_t GetExeList(std::vector<std::wstring>& szExes);

  /// Asks every thread of the process to quit; false when it has none.
  bool CloseProcess(std::uint32_t lProcessId);

  /// Identifiers of the running processes in slots 1 to the result (slot 0 holds 0).
  std::int32_t GetProcesses(std::vector<std::uint32_t>& lProcessIds);

 private:
  enum class Strategy : std::uint32_t { ToolHelp = 1, Identifiers = 2 };

  Strategy GetPlatform();
  std::optional<Processes::Module> FindModule(std::uint32_t lProcessId, std::uint32_t lModuleId);

  Processes& m_processes;
  SystemInfo& m_system;
};

/// Both outputs are empty when the window is gone, the caption also when it has none.
void GetWindowClassAndCaption(Windows& windows, WindowHandle hWnd, std::wstring& szClass,
                              std::wstring& szCaption);

/// Brings the application that owns the window to the foreground. Error 5 when it has no window
/// that can be activated.
void ActivateWindowProcess(Processes& processes, WindowHandle hWnd);

}  // namespace orvane
