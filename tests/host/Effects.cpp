#include "host/Effects.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "support/Utf8.h"

namespace orvane::host {
namespace {

void ReadMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

std::wstring Caption(HMENU menu, int position) {
  wchar_t text[256];
  const int length = GetMenuStringW(menu, static_cast<UINT>(position), text, 256, MF_BYPOSITION);
  return {text, text + length};
}

/// Identifier of the entry; 0 when there is none.
UINT Find(HMENU menu, const std::wstring& caption) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const HMENU submenu = GetSubMenu(menu, i);
    if (!submenu && Caption(menu, i) == caption) return GetMenuItemID(menu, i);
    if (const UINT id = submenu ? Find(submenu, caption) : 0) return id;
  }
  return 0;
}

}  // namespace

bool WaitFor(const std::function<bool()>& condition) {
  constexpr ULONGLONG Limit = 10'000;
  const ULONGLONG start = GetTickCount64();
  while (!condition()) {
    if (GetTickCount64() - start > Limit) return false;
    ReadMessages();
    Sleep(10);
  }
  return true;
}

std::string WaitForFile(const std::wstring& path) {
  // It is there, under its own name, a moment before whoever put it there lets go of it.
  std::ifstream file;
  const auto opens = [&] {
    file.open(std::filesystem::path(path), std::ios::binary);
    return file.is_open();
  };
  if (!WaitFor(opens)) return {};
  return {std::istreambuf_iterator<char>(file), {}};
}

std::wstring WaitForRecord(const std::wstring& path) {
  return FromUtf8(WaitForFile(path)).value_or(L"(not UTF-8)");
}

HWND WaitForWindow(const wchar_t* className, const wchar_t* title) {
  HWND window = nullptr;
  WaitFor([&] {
    window = FindWindowW(className, title);
    return window && IsWindowVisible(window);
  });
  return window;
}

std::wstring HostPath() {
  wchar_t path[MAX_PATH];
  return {path, path + GetModuleFileNameW(nullptr, path, MAX_PATH)};
}

std::wstring ClipboardOfAnotherProcess(const Scene& scene) {
  const std::wstring record = scene.Path(L"clipboard.txt");
  std::filesystem::remove(record);
  const HostProcess reader(L"--clipboard \"" + record + L'"');
  return WaitForRecord(record);
}

void PressTogether(const std::vector<WORD>& keys) {
  for (const bool up : {false, true}) {
    for (const WORD key : keys) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = key;
      input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
      input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
      SendInput(1, &input, sizeof input);
    }
  }
}

bool Choose(const RightClick& click, const std::wstring& caption, HWND window) {
  const UINT id = Find(click.menu, caption);
  if (id == 0) return false;
  CMINVOKECOMMANDINFO record{};
  record.cbSize = sizeof record;
  record.hwnd = window;
  record.lpVerb = MAKEINTRESOURCEA(id - 1);
  record.nShow = SW_SHOWNORMAL;
  return click.handler->InvokeCommand(&record) == S_OK;
}

HostProcess::HostProcess(const std::wstring& arguments) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;  // none: what it prints is not this program's to show
  PROCESS_INFORMATION started{};
  std::wstring line = L'"' + HostPath() + L"\" " + arguments;
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &started)) {
    return;
  }
  CloseHandle(started.hThread);
  m_process = started.hProcess;
}

HostProcess::~HostProcess() {
  if (!m_process) return;
  if (!HasEnded()) TerminateProcess(m_process, 0);
  WaitForSingleObject(m_process, 10'000);
  CloseHandle(m_process);
}

}  // namespace orvane::host
