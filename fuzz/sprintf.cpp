// Formats and escapes. Whatever the format, it is refused with one of its errors or gives a text of
// bounded length; the escapes are compared with a plain reading of them.

#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string>

#include "support/Error.h"
#include "support/clsSprintf.h"

namespace {

std::wstring Treated(const std::wstring& text) {
  const std::size_t slash = text.find(L'\\');
  if (slash == text.npos) return text;
  std::wstring result = text.substr(0, slash);
  std::size_t at = slash;
  for (; at < text.size() && text[at] == L'\\'; at += 2) {
    if (at + 1 == text.size()) break;
    const std::wstring pair = text.substr(at + 2, 2);
    const bool hex = pair.size() == 2 && pair[0] < 128 && std::isxdigit(pair[0]) && pair[1] < 128 &&
                     std::isxdigit(pair[1]);
    switch (text[at + 1]) {
      case L'a':
        result += L'\a';
        break;
      case L'b':
        result += L'\b';
        break;
      case L'f':
        result += L'\f';
        break;
      case L'n':
        result += L"\r\n";
        break;
      case L'r':
        result += L'\n';
        break;
      case L't':
        result += L'\t';
        break;
      case L'v':
        result += L'\v';
        break;
      case L'x':
        if (hex) {
          result += static_cast<wchar_t>(std::stoi(pair, nullptr, 16));
          at += 2;
          break;
        }
        [[fallthrough]];
      default:
        result += text[at + 1];
    }
  }
  if (at + 1 >= text.size() && at < text.size() && text[at] == L'\\') return result;
  if (at >= text.size()) return result;
  return result + text[at] + Treated(text.substr(at + 1));
}

/// Bytes 'S', 'I' and 'D' at the front choose the kinds of the values; anything else ends them.
orvane::clsSprintf::Value ValueOf(std::uint8_t kind) {
  if (kind == 'I') return std::int32_t{-123456};
  if (kind == 'D') return 2.5e7;
  return std::wstring(L"42");
}

}  // namespace

/// Every byte is the character of its number.
orvane::CodePage Plain() {
  std::array<wchar_t, 256> characters;
  std::iota(characters.begin(), characters.end(), L'\0');
  return orvane::CodePage(characters);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 1000) return 0;
  static const orvane::CodePage page = Plain();
  std::vector<orvane::clsSprintf::Value> values;
  std::size_t at = 0;
  for (; at < size && (data[at] == 'S' || data[at] == 'I' || data[at] == 'D'); ++at)
    values.push_back(ValueOf(data[at]));
  const std::wstring text(data + at, data + size);

  if (orvane::clsSprintf::TreatBackSlash(text, page) != Treated(text)) std::abort();
  try {
    const std::wstring result = orvane::clsSprintf::Sprintf(text, values, page);
    if (result.size() > 2 * text.size() + values.size() * 70'000) std::abort();
  } catch (const orvane::Error& error) {
    const std::int32_t number = error.Number();
    if (number != 450 && number != 93 && number != 13 && number != 6) std::abort();
  }
  return 0;
}
