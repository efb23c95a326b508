#include "win32/Clipboard.h"

#include <windows.h>

#include <cstring>

namespace orvane::win32 {
namespace {

constexpr int Tries = 10;
constexpr DWORD Pause = 50;  // milliseconds between them

/// The clipboard, open and emptied. It belongs to a window of its own: without an owner, nothing
/// may be put on it (Windows: EmptyClipboard documentation).
class OpenClipboardScope {
 public:
  OpenClipboardScope()
      : m_owner(CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                nullptr, nullptr)) {
    for (int i = 0; m_owner && !m_open && i < Tries; ++i) {
      if (i > 0) Sleep(Pause);
      m_open = OpenClipboard(m_owner);
    }
  }
  ~OpenClipboardScope() {
    if (m_open) CloseClipboard();
    if (m_owner) DestroyWindow(m_owner);
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;

  bool Empty() { return m_open && EmptyClipboard(); }

 private:
  HWND m_owner;
  bool m_open = false;
};

/// The text with its end in movable memory; null when there is none.
HGLOBAL CopyToGlobal(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  void* data = memory ? GlobalLock(memory) : nullptr;
  if (!data) {
    GlobalFree(memory);
    return nullptr;
  }
  std::memcpy(data, text.c_str(), bytes);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool Clipboard::Clear() {
  return OpenClipboardScope().Empty();
}

bool Clipboard::SetText(const std::wstring& text) {
  OpenClipboardScope clipboard;
  if (!clipboard.Empty()) return false;
  const HGLOBAL memory = CopyToGlobal(text);
  if (memory && SetClipboardData(CF_UNICODETEXT, memory)) return true;  // Windows owns it now
  GlobalFree(memory);
  return false;
}

}  // namespace orvane::win32
