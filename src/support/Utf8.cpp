#include "support/Utf8.h"

#include <cstdint>

namespace orvane {

namespace {

constexpr std::uint32_t Replacement = 0xFFFD;

bool IsSurrogate(std::uint32_t code) {
  return code >= 0xD800 && code < 0xE000;
}

/// The next character of a text whose units may be UTF-16 or whole code points.
std::uint32_t TakeCodePoint(std::wstring_view& text) {
  const auto first = static_cast<std::uint32_t>(text.front());
  text.remove_prefix(1);
  if (!IsSurrogate(first)) return first > 0x10FFFF ? Replacement : first;
  const auto second = text.empty() ? 0 : static_cast<std::uint32_t>(text.front());
  if (first >= 0xDC00 || second < 0xDC00 || second >= 0xE000) return Replacement;
  text.remove_prefix(1);
  return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void AppendWide(std::wstring& text, std::uint32_t code) {
  if (WCHAR_MAX <= 0xFFFF && code > 0xFFFF) {
    text.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10)));
    text.push_back(static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
  } else {
    text.push_back(static_cast<wchar_t>(code));
  }
}

/// Length of a sequence by its first byte; 0 for a byte that starts none.
std::size_t SequenceLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const std::uint32_t code = TakeCodePoint(text);
    if (code < 0x80) {
      bytes.push_back(static_cast<char>(code));
      continue;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::uint32_t Lead[] = {0, 0xC0, 0xE0, 0xF0};
    bytes.push_back(static_cast<char>(Lead[more] | code >> (6 * more)));
    for (int i = more; i-- > 0;) {
      bytes.push_back(static_cast<char>(0x80 | (code >> (6 * i) & 0x3F)));
    }
  }
  return bytes;
}

std::optional<std::wstring> FromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const auto first = static_cast<unsigned char>(bytes.front());
    const std::size_t length = SequenceLength(first);
    if (length == 0 || length > bytes.size()) return std::nullopt;
    std::uint32_t code = length == 1 ? first : first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
      const auto next = static_cast<unsigned char>(bytes[i]);
      if ((next & 0xC0) != 0x80) return std::nullopt;
      code = code << 6 | (next & 0x3Fu);
    }
    constexpr std::uint32_t Least[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < Least[length] || code > 0x10FFFF || IsSurrogate(code)) return std::nullopt;
    AppendWide(text, code);
    bytes.remove_prefix(length);
  }
  return text;
}

}  // namespace orvane
