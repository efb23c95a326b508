#pragma once

#include <map>
#include <string>

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "memory/Shell.h"
#include "memory/Windows.h"
#include "platform/Launcher.h"

namespace orvane::memory {

/// Records what is started as effects ("ShellExecute", "ShellExecuteEx", "CreateProcess",
/// "BrowseObject") and starts nothing. Everything succeeds but what a test says otherwise.
class Launcher : public orvane::Launcher {
 public:
  static constexpr std::uint32_t GetShellBrowser = 0x407;  // WM_USER + 7
  static constexpr std::uint32_t BrowserMoved = 0x40A;     // WM_USER + 10

  Launcher(Shell& shell, Windows& windows, Effects& effects, Faults& faults)
      : m_shell(shell), m_windows(windows), m_effects(effects), m_faults(faults) {}

  std::int32_t Open(const Execution& execution) override;
  bool OpenEx(const Execution& execution) override;
  bool Start(const std::wstring& program, const std::wstring& commandLine,
             const std::wstring& directory) override;

  /// The window's result for the message; 0 for a window that has none.
  std::intptr_t ShellBrowser(WindowHandle window) override;
  std::int32_t BrowseObject(std::intptr_t shellBrowser, const ItemIdList& item) override;
  void BrowsingDone(WindowHandle window) override;

  std::map<std::wstring, std::int32_t> failures;  // Open's code, by file; Start's folders too
  std::map<std::intptr_t, std::int32_t> browserFailures = {};  // BrowseObject's HRESULT

 private:
  std::intptr_t Ask(WindowHandle window, std::uint32_t message);

  Shell& m_shell;
  Windows& m_windows;
  Effects& m_effects;
  Faults& m_faults;
};

}  // namespace orvane::memory
