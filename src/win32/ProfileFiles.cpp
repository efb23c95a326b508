#include "win32/ProfileFiles.h"

#include <windows.h>

#include <algorithm>

#include "support/Number.h"

namespace orvane::win32 {

namespace {

// Stands for "no such entry" in the answer. The caller's fallback cannot: Windows takes the blanks
// at its end away.
constexpr wchar_t Missing[] = L"\xFFFF";

std::optional<std::wstring> Find(const std::wstring& file, const std::wstring& section,
                                 const std::wstring& key, std::size_t maxLength) {
  std::wstring text(std::max(maxLength, std::size(Missing)) + 1, L'\0');
  const DWORD length = GetPrivateProfileStringW(section.c_str(), key.c_str(), Missing, text.data(),
                                                static_cast<DWORD>(text.size()), file.c_str());
  text.resize(std::min<std::size_t>(length, text.size()));
  if (text == Missing) return std::nullopt;
  return text.substr(0, maxLength);
}

std::optional<std::wstring> OnOneLine(std::optional<std::wstring> text) {
  const auto isLineEnd = [](wchar_t c) { return c == L'\r' || c == L'\n'; };
  if (text) std::ranges::replace_if(*text, isLineEnd, L' ');
  return text;
}

}  // namespace

std::wstring ProfileFiles::Text(const std::wstring& file, const std::wstring& section,
                                const std::wstring& key, const std::wstring& fallback,
                                std::size_t maxLength) {
  return Find(file, section, key, maxLength).value_or(fallback.substr(0, maxLength));
}

std::int32_t ProfileFiles::Number(const std::wstring& file, const std::wstring& section,
                                  const std::wstring& key, std::int32_t fallback) {
  // Not GetPrivateProfileInt, which takes "0x10" and "0o10" too.
  const auto text = Find(file, section, key, 32);
  if (!text) return fallback;
  const bool negative = text->starts_with(L'-');
  const std::int32_t number = ParseLeadingNumber(negative ? text->substr(1) : *text);
  return negative ? -number : number;
}

bool ProfileFiles::Write(const std::wstring& file, const std::wstring& section,
                         const std::optional<std::wstring>& key,
                         const std::optional<std::wstring>& value) {
  const auto oneSection = OnOneLine(section), oneKey = OnOneLine(key), oneValue = OnOneLine(value);
  return WritePrivateProfileStringW(oneSection->c_str(), oneKey ? oneKey->c_str() : nullptr,
                                    oneKey && oneValue ? oneValue->c_str() : nullptr,
                                    file.c_str()) != 0;
}

}  // namespace orvane::win32
