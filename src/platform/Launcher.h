#pragma once

#include <cstdint>
#include <string>

#include "platform/Handles.h"
#include "platform/ItemIdList.h"

namespace orvane {

/// What ShellExecuteEx is asked to do. Empty texts are left out; an empty verb means the default.
struct Execution {
  // How the item is meant, and who waits (SEE_MASK_*).
  static constexpr std::uint32_t WithClass = 0x1;
  static constexpr std::uint32_t WithItem = 0x4;
  static constexpr std::uint32_t InvokeItem = 0xC;  // the item's own default command
  static constexpr std::uint32_t WaitForDde = 0x100;

  std::uint32_t mask = 0;
  WindowHandle owner = WindowHandle::None;
  std::wstring verb = {};
  std::wstring file = {};
  std::wstring parameters = {};
  std::wstring directory = {};
  std::int32_t show = 5;  // SW_*
  ItemIdList item = {};
  std::wstring className = {};
};

/// Hands things to the shell: documents, programs, folders. A file that is a bare name is looked up
/// among the registered programs, in the system's folders, in PATH and in the execution's
/// directory, never in the current one.
class Launcher {
 public:
  virtual ~Launcher() = default;

  /// ShellExecute: more than 32 when it went well, otherwise the failure's code (0 to 32). Only
  /// verb, file, parameters, directory, show and owner of the execution are looked at.
  virtual std::int32_t Open(const Execution& execution) = 0;

  /// ShellExecuteEx, showing no message of its own beyond what the shell does.
  virtual bool OpenEx(const Execution& execution) = 0;

  /// Starts a program with a normal, focused window. `program` is its full path and decides alone
  /// what is started; `commandLine` is what the program is given, its own name included. An empty
  /// directory means the current one. False also for a program without a full path, which would be
  /// looked for in the current directory.
  virtual bool Start(const std::wstring& program, const std::wstring& commandLine,
                     const std::wstring& directory) = 0;

  /// The shell browser of an explorer window (its answer to WM_USER + 7, the address of an
  /// IShellBrowser that stays the window's own); 0 when it answers anything else, and for a window
  /// of another thread, which is not asked: other windows mean other things by the number, and the
  /// address would be of no use here.
  virtual std::intptr_t ShellBrowser(WindowHandle window) = 0;

  /// Shows the item in the shell browser that ShellBrowser gave; 0 or the failing HRESULT, also for
  /// the browser 0 and for an item that is none.
  virtual std::int32_t BrowseObject(std::intptr_t shellBrowser, const ItemIdList& item) = 0;

  /// Tells the window that its browser has been sent elsewhere (WM_USER + 10); asks for no answer
  /// and passes over windows of other threads, as ShellBrowser does.
  virtual void BrowsingDone(WindowHandle window) = 0;
};

}  // namespace orvane
