#include "commands/Opener.h"

#include "commands/OpeningErrors.h"
#include "commands/Warning.h"
#include "menudata/ShellPaths.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t ShowHidden = 0;    // SW_HIDE: the programs show themselves
constexpr std::int32_t ShowNormal = 1;    // SW_SHOWNORMAL
constexpr std::int32_t ShowDefault = 10;  // SW_SHOWDEFAULT

constexpr std::size_t LongestAddress = 4095;

bool IsInternetShortcut(const std::wstring& path) {
  return path.size() >= 5 && LowerCase(path.substr(path.size() - 4)) == L".url";
}

}  // namespace

void Opener::OpenFile(const std::wstring& path, WindowHandle owner) {
  TraceScope scope(L"OpenFile");
  Log(L"Opening ", path);
  Execution execution{.owner = owner, .file = path};
  if (IsInternetShortcut(path)) {
    Log(L"Reading URL");
    std::wstring address = m_profiles.Text(path, L"InternetShortcut", L"URL", L"", LongestAddress);
    if (!address.empty()) {
      execution.file = L"iexplore";
      execution.parameters = std::move(address);
    }
    Log(L"URL=", execution.file);
  }
  m_launcher.OpenEx(execution);
}

void Opener::OpenFileEx(const ItemIdList& pidl, WindowHandle owner) {
  TraceScope scope(L"OpenFileEx");
  Log(L"Opening=", Hex(pidl.bytes.data()));
  const std::wstring path = PidlToPath(m_shell, pidl);
  if (!path.empty()) return OpenFile(path, owner);
  m_launcher.OpenEx({.mask = Execution::InvokeItem, .owner = owner, .item = pidl});
}

void Opener::OpenFolderEx(const ItemIdList& pidl, WindowHandle owner) {
  TraceScope scope(L"OpenFileEx");
  Log(L"Opening=", Hex(pidl.bytes.data()));
  m_launcher.OpenEx({.mask = Execution::WithClass | Execution::WithItem | Execution::WaitForDde,
                     .owner = owner,
                     .verb = L"open",
                     .show = ShowNormal,
                     .item = pidl,
                     .className = L"Folder"});
}

bool Opener::OpenSpecialFolderInExplorer(WindowHandle window, std::int32_t csidl) {
  TraceScope scope(L"OpenSpecialFolderInExplorer");
  Log(L"lCSIDL=", csidl);
  bool opened = false;
  if (const ItemIdList pidl = m_shell.SpecialFolder(window, csidl)) {
    Log(L"PIDL=", Hex(pidl.bytes.data()));
    opened = m_launcher.OpenEx({.mask = Execution::WithItem, .show = ShowDefault, .item = pidl});
  }
  Log(L"rv=", opened ? 1 : 0);
  return opened;
}

bool Opener::ShellExecuteChecked(Execution execution) {
  if (LowerCase(execution.file).find(L".exe") != std::wstring::npos) execution.show = ShowHidden;
  if (execution.parameters.empty() && execution.directory.empty()) {
    execution.show = ShowNormal;
  } else {
    Log(L"Owner=", Hex(execution.owner), L"  Op=", execution.verb, L"  File=", execution.file,
        L"  Parms=", execution.parameters, L"  Def=", execution.directory, L"  Show=",
        execution.show);
  }
  SetPendingError({});
  const std::int32_t code = m_launcher.Open(execution);
  if (code < 0 || code > 32) return true;
  const Error error = OpeningError(code);
  SetPendingError({error.Number(), error.Source(), error.Description(), error.OsError()});
  return false;
}

bool PostTrayCommand(Windows& windows, std::int32_t command) {
  constexpr std::uint32_t Command = 273;  // WM_COMMAND
  const WindowHandle taskbar = windows.Find(L"Shell_TrayWnd");
  if (taskbar == WindowHandle::None) return false;
  windows.Post(taskbar, Command, command, 0);
  return true;
}

}  // namespace orvane
