#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "host/Modes.h"
#include "support/Utf8.h"

namespace orvane::host {
namespace {

/// The file is there only when it is whole, since somebody waits for it.
int WriteWhole(const std::wstring& path, const std::wstring& text) {
  const std::wstring unfinished = path + L".part";
  std::ofstream(std::filesystem::path(unfinished), std::ios::binary) << ToUtf8(text);
  SetCurrentDirectoryW(L"C:\\");  // lets go of the folder, which its maker wants to remove
  return MoveFileExW(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}

std::wstring ClipboardText() {
  if (!OpenClipboard(nullptr)) return L"(the clipboard is in use)";
  std::wstring text = L"(no text)";
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    text = static_cast<const wchar_t*>(GlobalLock(data));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

}  // namespace

int RecordStart(const std::wstring& path, const std::vector<std::wstring>& arguments) {
  std::wstring text = std::filesystem::current_path().wstring() + L'\n';
  for (const std::wstring& argument : arguments) text += argument + L'\n';
  return WriteWhole(path, text);
}

int RecordPrompt() {
  const wchar_t* path = _wgetenv(PromptRecord);
  return path ? RecordStart(path, {}) : 1;
}

int RecordClipboard(const std::wstring& path) {
  return WriteWhole(path, ClipboardText());
}

int ShowEdit() {
  const HWND frame = CreateWindowW(L"#32770", L"Orvane Edit", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 30,
                                   30, 400, 200, nullptr, nullptr, nullptr, nullptr);
  const HWND edit =
      CreateWindowW(L"Edit", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | ES_MULTILINE, 0, 0, 380,
                    150, frame, nullptr, nullptr, nullptr);
  SetForegroundWindow(frame);
  SetFocus(edit);
  MSG message;
  while (IsWindow(frame) && GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

}  // namespace orvane::host
