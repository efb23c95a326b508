#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// UTF-16LE bytes, as the registry and the clipboard hold them, and texts. The one place that knows
// that wchar_t is a UTF-16 unit on Windows and a code point elsewhere. An unpaired surrogate goes
// through unharmed both ways.

/// An odd byte at the end is left out.
std::wstring FromUtf16(std::span<const std::byte> bytes);
std::vector<std::byte> ToUtf16(std::wstring_view text);

/// The text's UTF-16 units.
std::u16string ToUnits(std::wstring_view text);
std::wstring FromUnits(std::u16string_view units);

}  // namespace orvane
