#include "commands/CommandText.h"

#include <algorithm>
#include <cstring>

#include "support/Utf16.h"

namespace orvane {
namespace {

bool IsFirstHalf(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

}  // namespace

void CopyBounded(std::wstring_view text, const CodePage& codePage, std::span<char> buffer) {
  if (buffer.empty()) return;
  const std::vector<std::byte> bytes = codePage.Encode(text);
  const std::size_t count = std::min(bytes.size(), buffer.size() - 1);
  if (count != 0) std::memcpy(buffer.data(), bytes.data(), count);
  buffer[count] = '\0';
}

void CopyBounded(std::wstring_view text, std::span<char16_t> buffer) {
  if (buffer.empty()) return;
  const std::vector<std::byte> bytes = ToUtf16(text);
  const std::size_t units = bytes.size() / sizeof(char16_t);
  std::size_t count = std::min(units, buffer.size() - 1);
  if (count != 0) std::memcpy(buffer.data(), bytes.data(), count * sizeof(char16_t));
  if (count != 0 && count < units && IsFirstHalf(buffer[count - 1])) --count;
  buffer[count] = u'\0';
}

}  // namespace orvane
