#include "designer/ProfileText.h"

#include <algorithm>
#include <initializer_list>

#include "support/IniText.h"
#include "support/Number.h"
#include "support/Utf16.h"

namespace orvane::designer {
namespace {

constexpr std::wstring_view TakenOff = L" \t\v\f\x1A\"'";

bool NeedsQuotes(std::wstring_view value) {
  return !value.empty() && (TakenOff.find(value.front()) != TakenOff.npos ||
                            TakenOff.find(value.back()) != TakenOff.npos);
}

}  // namespace

std::wstring ProfileText::Text(const std::wstring&, const std::wstring& section,
                               const std::wstring& key, const std::wstring& fallback,
                               std::size_t maxLength) {
  const IniText text(m_bytes, m_codePage);
  const std::wstring* value = text.Value(section, key);
  return (value ? *value : fallback).substr(0, maxLength);
}

std::int32_t ProfileText::Number(const std::wstring& file, const std::wstring& section,
                                 const std::wstring& key, std::int32_t fallback) {
  return ParseLeadingNumber(
      Text(file, section, key, std::to_wstring(fallback), std::wstring::npos));
}

/// A section is removed with all others of its name, which would count from then on.
bool ProfileText::Write(const std::wstring&, const std::wstring& section,
                        const std::optional<std::wstring>& key,
                        const std::optional<std::wstring>& value) {
  const bool quoted = value && NeedsQuotes(*value);
  const auto written = quoted ? L'"' + *value + L'"' : value;
  for (std::size_t before = m_bytes.size() + 1; m_bytes.size() != before;) {
    before = m_bytes.size();
    m_bytes = WriteIniText(m_bytes, m_codePage, section, key, written);
    if (key) break;
  }
  return true;
}

bool IsAnsi(std::span<const std::byte> bytes) {
  const auto startsWith = [&](std::initializer_list<int> mark) {
    return bytes.size() >= mark.size() &&
           std::equal(mark.begin(), mark.end(), bytes.begin(),
                      [](int wanted, std::byte byte) { return std::byte(wanted) == byte; });
  };
  return !startsWith({0xFF, 0xFE}) && !startsWith({0xEF, 0xBB, 0xBF});
}

std::vector<std::byte> FromAnsi(std::span<const std::byte> bytes, const CodePage& codePage) {
  return ToUtf16(L'\xFEFF' + codePage.Decode(bytes));
}

}  // namespace orvane::designer
