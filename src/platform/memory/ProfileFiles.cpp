#include "platform/memory/ProfileFiles.h"

#include "platform/memory/Windows1252.h"
#include "support/Number.h"
#include "support/Text.h"

namespace orvane::memory {

namespace {

std::wstring_view TakeLine(std::wstring_view& rest) {
  const std::wstring_view line = rest.substr(0, rest.find(L'\n'));
  rest.remove_prefix(std::min(rest.size(), line.size() + 1));
  return Trim(line.substr(0, line.find(L'\r')));
}

std::wstring_view WithoutQuotes(std::wstring_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == L'"' || value.front() == L'\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

std::wstring ProfileFiles::Text(const std::wstring& file, const std::wstring& section,
                                const std::wstring& key, const std::wstring& fallback,
                                std::size_t maxLength) {
  return Find(file, section, key).value_or(fallback).substr(0, maxLength);
}

std::int32_t ProfileFiles::Number(const std::wstring& file, const std::wstring& section,
                                  const std::wstring& key, std::int32_t fallback) {
  const auto value = Find(file, section, key);
  if (!value) return fallback;
  const bool negative = value->starts_with(L'-');
  const std::int32_t number = ParseLeadingNumber(negative ? value->substr(1) : *value);
  return negative ? -number : number;
}

bool ProfileFiles::Write(const std::wstring&, const std::wstring&,
                         const std::optional<std::wstring>&, const std::optional<std::wstring>&) {
  return false;
}

std::optional<std::wstring> ProfileFiles::Find(const std::wstring& file,
                                               const std::wstring& section,
                                               const std::wstring& key) {
  const auto bytes = m_files.Read(file);
  if (!bytes) return std::nullopt;
  const std::wstring text = DecodeAnsi(*bytes);
  const std::wstring header = LowerCase(L"[" + section + L"]");
  const std::wstring name = LowerCase(key);
  bool inside = false;
  for (std::wstring_view rest = text; !rest.empty();) {
    const std::wstring_view line = TakeLine(rest);
    if (line.starts_with(L'[')) {
      if (inside) break;
      inside = LowerCase(line) == header;
    } else if (inside && LowerCase(TrimEnd(line.substr(0, line.find(L'=')))) == name) {
      const std::size_t equals = line.find(L'=');
      if (equals != std::wstring_view::npos) {
        return std::wstring(WithoutQuotes(Trim(line.substr(equals + 1))));
      }
    }
  }
  return std::nullopt;
}

}  // namespace orvane::memory
