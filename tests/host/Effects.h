#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "host/Scene.h"

namespace orvane::host {

/// Waits up to ten seconds for the condition, reading this thread's messages meanwhile; false when
/// it never held.
bool WaitFor(const std::function<bool()>& condition);

/// Content of the file as bytes, which is waited for; empty when it does not come.
std::string WaitForFile(const std::wstring& path);

/// The same of a file that a mode of this program wrote.
std::wstring WaitForRecord(const std::wstring& path);

/// The visible window of that class, which is waited for; null when it does not come.
HWND WaitForWindow(const wchar_t* className, const wchar_t* title = nullptr);

/// Path of this program.
std::wstring HostPath();

/// The clipboard's text as another process reads it.
std::wstring ClipboardOfAnotherProcess(const Scene& scene);

/// Presses the keys one after the other and releases them.
void PressTogether(const std::vector<WORD>& keys);

/// Chooses the entry with the caption, which may lie in a submenu, of a menu that was made with
/// identifiers from 1; false when there is none.
bool Choose(const RightClick& click, const std::wstring& caption, HWND window = nullptr);

/// Another process of this program; it is gone with the object.
class HostProcess {
 public:
  explicit HostProcess(const std::wstring& arguments);
  ~HostProcess();
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;

  bool HasEnded() const { return WaitForSingleObject(m_process, 0) == WAIT_OBJECT_0; }

 private:
  HANDLE m_process = nullptr;
};

}  // namespace orvane::host
