#include "support/Utf16.h"

#include <cstdint>

namespace orvane {
namespace {

constexpr bool WideIsUtf16 = sizeof(wchar_t) == sizeof(char16_t);

bool IsHigh(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLow(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

std::u16string ToUnits(std::wstring_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (wchar_t character : text) {
    auto code = static_cast<std::uint32_t>(character);
    if (!WideIsUtf16 && code > 0xFFFF) {
      code -= 0x10000;
      units.push_back(static_cast<char16_t>(0xD800 + (code >> 10 & 0x3FF)));
      code = 0xDC00 + (code & 0x3FF);
    }
    units.push_back(static_cast<char16_t>(code));
  }
  return units;
}

std::wstring FromUnits(std::u16string_view units) {
  std::wstring text;
  text.reserve(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (!WideIsUtf16 && IsHigh(units[i]) && i + 1 < units.size() && IsLow(units[i + 1])) {
      const std::uint32_t code = 0x10000u + ((units[i] - 0xD800u) << 10) + (units[i + 1] - 0xDC00u);
      text.push_back(static_cast<wchar_t>(code));
      ++i;
    } else {
      text.push_back(static_cast<wchar_t>(units[i]));
    }
  }
  return text;
}

std::wstring FromUtf16(std::span<const std::byte> bytes) {
  std::u16string units(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < units.size(); ++i)
    units[i] = static_cast<char16_t>(std::to_integer<unsigned>(bytes[2 * i]) |
                                     std::to_integer<unsigned>(bytes[2 * i + 1]) << 8);
  return FromUnits(units);
}

std::vector<std::byte> ToUtf16(std::wstring_view text) {
  const std::u16string units = ToUnits(text);
  std::vector<std::byte> bytes;
  bytes.reserve(units.size() * 2);
  for (char16_t unit : units) {
    bytes.push_back(static_cast<std::byte>(unit & 0xFF));
    bytes.push_back(static_cast<std::byte>(unit >> 8));
  }
  return bytes;
}

}  // namespace orvane
