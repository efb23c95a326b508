#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "host/Library.h"
#include "support/Utf8.h"

namespace orvane::host {

/// Waits up to ten seconds for the condition, reading this thread's messages meanwhile; false when
/// it never held.
template <class Condition>
bool WaitFor(const Condition& condition) {
  constexpr ULONGLONG Limit = 10'000;
  const ULONGLONG start = GetTickCount64();
  while (!condition()) {
    if (GetTickCount64() - start > Limit) return false;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    Sleep(10);
  }
  return true;
}

/// Content of the file, UTF-8, which is waited for; empty when it does not come.
inline std::wstring WaitForFile(const std::wstring& path) {
  // It is there, under its own name, a moment before whoever put it there lets go of it.
  std::ifstream file;
  const auto opens = [&] {
    file.open(std::filesystem::path(path), std::ios::binary);
    return file.is_open();
  };
  if (!WaitFor(opens)) return {};
  return FromUtf8(std::string(std::istreambuf_iterator<char>(file), {})).value_or(L"(not UTF-8)");
}

/// The visible window of that class, which is waited for; null when it does not come.
inline HWND WaitForWindow(const wchar_t* className, const wchar_t* title = nullptr) {
  HWND window = nullptr;
  WaitFor([&] {
    window = FindWindowW(className, title);
    return window && IsWindowVisible(window);
  });
  return window;
}

/// Another process of this program; it is gone with the object.
class HostProcess {
 public:
  explicit HostProcess(const std::wstring& arguments) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;  // none: what it prints is not this
                                             // program's to show
    std::wstring line = L'"' + HostPath() + L"\" " + arguments;
    CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                   &m_started);
  }
  ~HostProcess() {
    if (!HasEnded()) TerminateProcess(m_started.hProcess, 0);
    WaitForSingleObject(m_started.hProcess, 10'000);
    CloseHandle(m_started.hThread);
    CloseHandle(m_started.hProcess);
  }
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;

  bool HasEnded() const { return WaitForSingleObject(m_started.hProcess, 0) == WAIT_OBJECT_0; }

 private:
  PROCESS_INFORMATION m_started{};
};

}  // namespace orvane::host
