#include "win32/Launcher.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "support/FullPath.h"
#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"
#include "win32/ProgramPath.h"

namespace orvane::win32 {
namespace {

const wchar_t* TextOrNull(const std::wstring& text) {
  return text.empty() ? nullptr : text.c_str();
}

}  // namespace

std::int32_t Launcher::Open(const Execution& execution) {
  constexpr std::int32_t NotFound = 2;
  const std::wstring file = ProgramPath(execution.file, execution.directory);
  if (file.empty()) return NotFound;
  const auto result = reinterpret_cast<std::intptr_t>(ShellExecuteW(
      ToNative<HWND>(execution.owner), TextOrNull(execution.verb), file.c_str(),
      TextOrNull(execution.parameters), TextOrNull(execution.directory), execution.show));
  return static_cast<std::int32_t>(std::clamp<std::intptr_t>(result, 0, INT32_MAX));
}

bool Launcher::OpenEx(const Execution& execution) {
  const PCIDLIST_ABSOLUTE item = ToNativeList(execution.item);
  if (!item && (execution.mask & Execution::WithItem) != 0) return false;
  const std::wstring file = ProgramPath(execution.file, execution.directory);
  if (file.empty() && !execution.file.empty()) return false;
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = execution.mask;
  info.hwnd = ToNative<HWND>(execution.owner);
  info.lpVerb = TextOrNull(execution.verb);
  info.lpFile = TextOrNull(file);
  info.lpParameters = TextOrNull(execution.parameters);
  info.lpDirectory = TextOrNull(execution.directory);
  info.nShow = execution.show;
  info.lpIDList = const_cast<void*>(static_cast<const void*>(item));  // only read
  info.lpClass = TextOrNull(execution.className);
  return ShellExecuteExW(&info);
}

bool Launcher::Start(const std::wstring& program, const std::wstring& commandLine,
                     const std::wstring& directory) {
  if (!IsFullPath(program)) return false;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  std::wstring line = commandLine;  // CreateProcess writes into it
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE,
                      nullptr, TextOrNull(directory), &startup, &started)) {
    return false;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return true;
}

}  // namespace orvane::win32
