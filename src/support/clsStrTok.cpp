#include "support/clsStrTok.h"

#include <algorithm>
#include <utility>

#include "support/Number.h"
#include "support/Text.h"

namespace orvane {
namespace {

bool ParseBoolean(std::wstring_view text) {
  const std::wstring lower = LowerCase(Trim(text));
  if (lower == L"true") return true;
  if (lower == L"false") return false;
  return ParseNumber(text) != 0;
}

}  // namespace

void clsStrTok::Value(std::wstring text) {
  m_text = std::move(text);
  m_position = 0;
}

clsStrTok::Token clsStrTok::GetNextToken(std::wstring_view delimiters, std::int32_t type) {
  const std::size_t start =
      std::min(m_text.find_first_not_of(delimiters, m_position), m_text.size());
  m_position = std::min(m_text.find_first_of(delimiters, start), m_text.size());
  if (start == m_position) return {};
  const std::wstring token = m_text.substr(start, m_position - start);
  switch (type) {
    case TypeInteger:
      return ParseNumber16(token);
    case TypeLong:
      return ParseNumber(token);
    case TypeString:
      return token;
    case TypeBoolean:
      return ParseBoolean(token);
    default:
      return {};
  }
}

}  // namespace orvane
