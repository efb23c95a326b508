#include "win32/Processes.h"

#include <windows.h>

#include <psapi.h>
#include <tlhelp32.h>

#include <memory>

#include "win32/NativeHandles.h"
#include "win32/UniqueHandle.h"

namespace orvane::win32 {
namespace {

constexpr DWORD MaxPath = 32768;

/// Walks a tool-help snapshot with its pair of functions.
template <class Record, class Visit>
void Walk(DWORD what, std::uint32_t process, BOOL(WINAPI* first)(HANDLE, Record*),
          BOOL(WINAPI* next)(HANDLE, Record*), Visit visit) {
  const auto snapshot = TakeHandle<UniqueKernelHandle>(CreateToolhelp32Snapshot(what, process));
  if (!snapshot) return;
  Record record{};
  record.dwSize = sizeof record;
  for (BOOL more = first(snapshot.get(), &record); more; more = next(snapshot.get(), &record)) {
    visit(record);
  }
}

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

struct MainWindowSearch {
  DWORD process;
  HWND main = nullptr;
  HWND tool = nullptr;
};

/// Ends the walk at the first main window. Tool windows, as the taskbar is one of its shell's, are
/// for programs that have nothing else.
BOOL CALLBACK FindMainWindow(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<MainWindowSearch*>(parameter);
  if (ProcessOf(window) != search.process || !IsWindowVisible(window) ||
      GetWindow(window, GW_OWNER)) {
    return TRUE;
  }
  const bool isTool = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
  if (!isTool)
    search.main = window;
  else if (!search.tool)
    search.tool = window;
  return isTool;
}

}  // namespace

std::vector<std::uint32_t> Processes::Ids() {
  std::vector<DWORD> ids(256);
  DWORD bytes = 0;
  for (;;) {
    const auto size = static_cast<DWORD>(ids.size() * sizeof(DWORD));
    if (!EnumProcesses(ids.data(), size, &bytes)) return {};
    if (bytes < size) break;  // a full list may be a cut one
    ids.resize(2 * ids.size());
  }
  return {ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(bytes / sizeof(DWORD))};
}

std::wstring Processes::Executable(std::uint32_t process) {
  const UniqueKernelHandle handle(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process));
  if (!handle) return {};
  const auto path = std::make_unique_for_overwrite<wchar_t[]>(MaxPath);
  DWORD length = MaxPath;
  if (!QueryFullProcessImageNameW(handle.get(), 0, path.get(), &length)) return {};
  return {path.get(), length};
}

std::vector<Processes::Entry> Processes::ProcessSnapshot() {
  std::vector<Entry> entries;
  Walk<PROCESSENTRY32W>(
      TH32CS_SNAPPROCESS, 0, Process32FirstW, Process32NextW, [&](const PROCESSENTRY32W& record) {
        entries.push_back({record.th32ProcessID, record.th32ModuleID, record.szExeFile});
      });
  return entries;
}

std::vector<Processes::Module> Processes::ModuleSnapshot(std::uint32_t process) {
  std::vector<Module> modules;
  Walk<MODULEENTRY32W>(
      TH32CS_SNAPMODULE, process, Module32FirstW, Module32NextW, [&](const MODULEENTRY32W& record) {
        modules.push_back({record.th32ModuleID, record.szModule, record.szExePath});
      });
  return modules;
}

std::vector<std::uint32_t> Processes::ThreadSnapshot(std::uint32_t process) {
  std::vector<std::uint32_t> threads;
  Walk<THREADENTRY32>(TH32CS_SNAPTHREAD, 0, Thread32First, Thread32Next,
                      [&](const THREADENTRY32& record) {
                        if (record.th32OwnerProcessID == process) {
                          threads.push_back(record.th32ThreadID);
                        }
                      });
  return threads;
}

bool Processes::PostQuit(std::uint32_t thread) {
  return PostThreadMessageW(thread, WM_QUIT, 0, 0);
}

Processes::WindowOwner Processes::OwnerOf(WindowHandle window) {
  DWORD process = 0;
  const DWORD thread = GetWindowThreadProcessId(ToNative<HWND>(window), &process);
  return thread == 0 ? WindowOwner{} : WindowOwner{process, thread};
}

bool Processes::Activate(std::uint32_t process) {
  if (ProcessOf(GetForegroundWindow()) == process) return true;
  MainWindowSearch search{.process = process};
  EnumWindows(FindMainWindow, reinterpret_cast<LPARAM>(&search));
  const HWND main = search.main ? search.main : search.tool;
  if (!main) return false;
  if (IsIconic(main)) ShowWindowAsync(main, SW_RESTORE);
  // A dialog in front of it is what the user works with.
  const HWND window = GetLastActivePopup(main);
  return SetForegroundWindow(window) || GetForegroundWindow() == window;
}

}  // namespace orvane::win32
