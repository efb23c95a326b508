#include "designerapp/ItemClipboard.h"

#include <cwchar>

namespace orvane::designerapp {
namespace {

class OpenClipboardScope {
 public:
  explicit OpenClipboardScope(HWND owner) : m_open(OpenClipboard(owner)) {}
  ~OpenClipboardScope() {
    if (m_open) CloseClipboard();
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;

  explicit operator bool() const { return m_open; }

 private:
  bool m_open;
};

}  // namespace

std::optional<std::wstring> ClipboardText(HWND owner) {
  const OpenClipboardScope clipboard(owner);
  if (!clipboard) return std::nullopt;
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  const auto* text = static_cast<const wchar_t*>(memory ? GlobalLock(memory) : nullptr);
  if (!text) return std::nullopt;
  std::wstring copy(text, wcsnlen(text, GlobalSize(memory) / sizeof(wchar_t)));
  GlobalUnlock(memory);
  return copy;
}

}  // namespace orvane::designerapp
