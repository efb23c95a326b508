#include "support/Text.h"

#include <algorithm>

namespace orvane {

wchar_t LowerCase(wchar_t c) {
  const auto within = [c](int first, int last) {
    return static_cast<int>(c) >= first && static_cast<int>(c) <= last;
  };
  if (within('A', 'Z') || (within(0xC0, 0xDE) && c != 0xD7)) return static_cast<wchar_t>(c + 32);
  if (static_cast<unsigned>(c) < 0x100) return c;
  // Latin Extended: capital and small letters take turns; 0x130 has no single small form.
  if ((within(0x100, 0x137) || within(0x14A, 0x177)) && c % 2 == 0 && c != 0x130)
    return static_cast<wchar_t>(c + 1);
  if ((within(0x139, 0x148) || within(0x179, 0x17E)) && c % 2 == 1)
    return static_cast<wchar_t>(c + 1);
  if (c == 0x178) return 0xFF;
  if (within(0x391, 0x3AB) && c != 0x3A2) return static_cast<wchar_t>(c + 32);  // Greek
  if (within(0x410, 0x42F)) return static_cast<wchar_t>(c + 32);                // Cyrillic
  if (within(0x400, 0x40F)) return static_cast<wchar_t>(c + 80);
  return c;
}

wchar_t UpperCase(wchar_t c) {
  if (c == 0xFF) return 0x178;
  for (const int distance : {1, 32, 80}) {
    if (static_cast<int>(c) <= distance) continue;
    const auto capital = static_cast<wchar_t>(c - distance);
    if (LowerCase(capital) == c) return capital;
  }
  return c;
}

std::wstring LowerCase(std::wstring_view text) {
  std::wstring lower(text);
  for (wchar_t& character : lower) character = LowerCase(character);
  return lower;
}

std::wstring UpperCase(std::wstring_view text) {
  std::wstring upper(text);
  for (wchar_t& character : upper) character = UpperCase(character);
  return upper;
}

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(
      a, b, [](wchar_t x, wchar_t y) { return x == y || LowerCase(x) == LowerCase(y); });
}

std::wstring_view TrimEnd(std::wstring_view text) {
  return text.substr(0, text.find_last_not_of(L' ') + 1);
}

std::wstring_view Trim(std::wstring_view text) {
  text = TrimEnd(text);
  if (!text.empty()) text.remove_prefix(text.find_first_not_of(L' '));
  return text;
}

}  // namespace orvane
