#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Handles.h"

namespace orvane {

/// The running programs. Which half of the walks a system offers follows from its platform number
/// (SystemInfo::OsVersion): tool-help walks on 1, identifiers and executables on 2.
class Processes {
 public:
  struct Entry {
    std::uint32_t process = 0;
    std::uint32_t module = 0;  // identifier of the program's own module
    std::wstring file;
  };
  struct Module {
    std::uint32_t module = 0;
    std::wstring name;
    std::wstring path;
  };
  struct WindowOwner {
    std::uint32_t process = 0;
    std::uint32_t thread = 0;
  };

  virtual ~Processes() = default;

  /// Identifiers of all running processes, in the system's order (EnumProcesses).
  virtual std::vector<std::uint32_t> Ids() = 0;

  /// Full path of a process's executable; empty when the process is gone or cannot be opened.
  virtual std::wstring Executable(std::uint32_t process) = 0;

  // Tool-help snapshots, in the system's order; empty when no snapshot can be taken.
  virtual std::vector<Entry> ProcessSnapshot() = 0;
  virtual std::vector<Module> ModuleSnapshot(std::uint32_t process) = 0;
  /// The threads of one process.
  virtual std::vector<std::uint32_t> ThreadSnapshot(std::uint32_t process) = 0;

  /// Asks a thread's message loop to end (WM_QUIT).
  virtual bool PostQuit(std::uint32_t thread) = 0;

  /// Zeros for what is no window.
  virtual WindowOwner OwnerOf(WindowHandle window) = 0;

  /// Brings the process's application to the foreground: its main window, or the dialog in front of
  /// it. An application that is there already stays as it is, since the window that has the focus
  /// may be any of its windows. False when it has no window or the desktop refuses.
  virtual bool Activate(std::uint32_t process) = 0;
};

}  // namespace orvane
