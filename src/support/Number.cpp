#include "support/Number.h"

#include <limits>

#include "support/Error.h"

namespace orvane {
namespace {

bool IsDigit(wchar_t character) {
  return character >= L'0' && character <= L'9';
}

template <class Integer>
Integer Parse(std::wstring_view text) {
  const auto first = text.find_first_not_of(L" \t");
  if (first == text.npos) throw Error(Error::TypeMismatch, L"Type mismatch");
  text = text.substr(first, text.find_last_not_of(L" \t") - first + 1);
  const bool negative = text.front() == L'-';
  if (negative || text.front() == L'+') text.remove_prefix(1);
  if (text.empty()) throw Error(Error::TypeMismatch, L"Type mismatch");

  // Collected below zero, where there is one number more.
  constexpr std::int64_t least = std::numeric_limits<Integer>::min();
  std::int64_t value = 0;
  bool inRange = true;
  for (wchar_t character : text) {
    if (!IsDigit(character)) throw Error(Error::TypeMismatch, L"Type mismatch");
    if (inRange) value = value * 10 - (character - L'0');
    inRange = value >= least;
  }
  if (!negative) value = -value;
  if (!inRange || value > std::numeric_limits<Integer>::max())
    throw Error(Error::Overflow, L"Overflow");
  return static_cast<Integer>(value);
}

}  // namespace

std::int32_t ParseNumber(std::wstring_view text) {
  return Parse<std::int32_t>(text);
}

std::int16_t ParseNumber16(std::wstring_view text) {
  return Parse<std::int16_t>(text);
}

std::int32_t ParseLeadingNumber(std::wstring_view text) {
  std::int64_t value = 0;
  for (wchar_t character : text) {
    if (!IsDigit(character)) break;
    value = value * 10 + (character - L'0');
    if (value > std::numeric_limits<std::int32_t>::max()) return 0;
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace orvane
