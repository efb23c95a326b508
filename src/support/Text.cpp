#include "support/Text.h"

#include <algorithm>
#include <iterator>

namespace orvane {

namespace {

/// Capitals, every `step` of them, and how far behind each its small letter stands.
struct Capitals {
  int first;
  int last;
  int step;
  int distance;
};

// The letters of the Windows code pages and their alphabets' relatives, in order. 0x130 has no
// single small form.
constexpr Capitals Rows[] = {
    {0xC0, 0xD6, 1, 32},     {0xD8, 0xDE, 1, 32},     {0x100, 0x12E, 2, 1},
    {0x132, 0x136, 2, 1},    {0x139, 0x147, 2, 1},    {0x14A, 0x176, 2, 1},
    {0x178, 0x178, 1, -121}, {0x179, 0x17D, 2, 1},    {0x1A0, 0x1A4, 2, 1},
    {0x1AF, 0x1AF, 1, 1},    {0x1CD, 0x1DB, 2, 1},    {0x1DE, 0x1EE, 2, 1},
    {0x1F8, 0x21E, 2, 1},    {0x222, 0x232, 2, 1},    {0x386, 0x386, 1, 38},
    {0x388, 0x38A, 1, 37},   {0x38C, 0x38C, 1, 64},   {0x38E, 0x38F, 1, 63},
    {0x391, 0x3A1, 1, 32},   {0x3A3, 0x3AB, 1, 32},   {0x400, 0x40F, 1, 80},
    {0x410, 0x42F, 1, 32},   {0x460, 0x480, 2, 1},    {0x48A, 0x4BE, 2, 1},
    {0x4C0, 0x4C0, 1, 15},   {0x4C1, 0x4CD, 2, 1},    {0x4D0, 0x52E, 2, 1},
    {0x531, 0x556, 1, 48},   {0x1E00, 0x1E94, 2, 1},  {0x1EA0, 0x1EFE, 2, 1},
    {0x2160, 0x216F, 1, 16}, {0xFF21, 0xFF3A, 1, 32},
};

bool Holds(const Capitals& row, int c) {
  return c >= row.first && c <= row.last && (c - row.first) % row.step == 0;
}

}  // namespace

wchar_t LowerCase(wchar_t c) {
  if (c >= L'A' && c <= L'Z') return static_cast<wchar_t>(c + 32);
  if (c < 0x80) return c;
  const auto row = std::ranges::lower_bound(Rows, static_cast<int>(c), {}, &Capitals::last);
  const bool isCapital = row != std::end(Rows) && Holds(*row, c);
  return isCapital ? static_cast<wchar_t>(c + row->distance) : c;
}

wchar_t UpperCase(wchar_t c) {
  if (c >= L'a' && c <= L'z') return static_cast<wchar_t>(c - 32);
  if (c < 0x80) return c;
  for (const Capitals& row : Rows)
    if (Holds(row, c - row.distance)) return static_cast<wchar_t>(c - row.distance);
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
