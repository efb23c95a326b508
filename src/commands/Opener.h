#pragma once

#include <cstdint>
#include <string>

#include "platform/Launcher.h"
#include "platform/ProfileFiles.h"
#include "platform/Shell.h"
#include "platform/Windows.h"

namespace orvane {

/// Hands files, folders and links to the shell. Only ShellExecuteChecked says how it went; with the
/// others a thing that cannot be opened stays closed.
class Opener {
 public:
  Opener(Launcher& launcher, ProfileFiles& profiles, Shell& shell)
      : m_launcher(launcher), m_profiles(profiles), m_shell(shell) {}

  /// With the default verb; an Internet shortcut that names an address goes to the browser.
  void OpenFile(const std::wstring& path, WindowHandle owner);
  /// An item that may have no path, such as a printer.
  void OpenFileEx(const ItemIdList& pidl, WindowHandle owner);
  /// A folder in a new window.
  void OpenFolderEx(const ItemIdList& pidl, WindowHandle owner);
  /// A special folder in a new window; false when the shell does not know it.
  bool OpenSpecialFolderInExplorer(WindowHandle window, std::int32_t csidl);

  /// Starts file, verb, parameters, directory and show code of the execution. After a failure
  /// (false) the thread's pending error says why.
  bool ShellExecuteChecked(Execution execution);

 private:
  Launcher& m_launcher;
  ProfileFiles& m_profiles;
  Shell& m_shell;
};

/// Posts a command of the taskbar's own menu; false without a taskbar.
bool PostTrayCommand(Windows& windows, std::int32_t command);

}  // namespace orvane
