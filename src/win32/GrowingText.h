#pragma once

#include <windows.h>

#include <algorithm>
#include <string>

namespace orvane::win32 {

/// A text from a call that is told the size of a buffer, answers the length it wrote, and when the
/// buffer is too small that size (cut short) or the size it needs. Empty when the call answers 0.
template <class Call>
std::wstring GrowingText(Call call) {
  constexpr DWORD Limit = 1 << 16;  // no text of Windows' own is longer
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const auto size = static_cast<DWORD>(text.size());
    const DWORD length = call(text.data(), size);
    if (length < size || size >= Limit) {
      text.resize(std::min(length, size));
      return text;
    }
    text.resize(std::min(Limit, std::max(length + 1, size * 2)));
  }
}

}  // namespace orvane::win32
