#include "support/clsSprintf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <string>
#include <system_error>

#include "support/Error.h"
#include "support/Number.h"
#include "support/Text.h"

namespace orvane {
namespace {

constexpr std::int32_t PatternError = 93;
constexpr std::int32_t CountError = 450;

struct Letter {
  wchar_t letter;
  std::int32_t type;
  bool upper;
};

// "l" is not here: it is one only with the "d" behind it.
constexpr Letter Letters[] = {
    {L's', clsSprintf::TypeString, false},      {L'S', clsSprintf::TypeString, true},
    {L'd', clsSprintf::TypeInteger, false},     {L'i', clsSprintf::TypeInteger, false},
    {L'u', clsSprintf::TypeInteger, false},     {L'f', clsSprintf::TypeFloat, false},
    {L'e', clsSprintf::TypeFloat, false},       {L'g', clsSprintf::TypeFloat, false},
    {L'E', clsSprintf::TypeFloat, false},       {L'G', clsSprintf::TypeFloat, false},
    {L'x', clsSprintf::TypeHexadecimal, false}, {L'X', clsSprintf::TypeHexadecimal, true},
};

/// A conversion found in a format: its length from the "%" on, and what it asks for.
struct Conversion {
  std::size_t length;
  std::int32_t type;
  bool upper;
};

std::size_t CountConversions(std::wstring_view format) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != L'%') continue;
    if (i + 1 < format.size() && format[i + 1] == L'%')
      ++i;
    else
      ++count;
  }
  return count;
}

Conversion FindConversion(const std::wstring& format, std::size_t start) {
  if (format.compare(start, 2, L"%%") == 0) return {2, clsSprintf::TypeLiteral, false};
  for (std::size_t i = start + 1; i < format.size(); ++i) {
    if (format[i] == L'l') {
      if (format.compare(i + 1, 1, L"d") == 0) return {i + 2 - start, clsSprintf::TypeLong, false};
      throw Error(PatternError,
                  L"Unrecognized pattern " + format.substr(i - 1, 3) + L" in " + format);
    }
    const auto* found = std::ranges::find(Letters, format[i], &Letter::letter);
    if (found != std::end(Letters)) return {i + 1 - start, found->type, found->upper};
  }
  throw Error(PatternError, L"Invalid % format in <" + format + L">");
}

std::int32_t ToInteger(const clsSprintf::Value& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return ParseNumber(*text);
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  const double rounded = std::nearbyint(std::get<double>(value));
  constexpr double least = std::numeric_limits<std::int32_t>::min();
  constexpr double greatest = std::numeric_limits<std::int32_t>::max();
  if (!(rounded >= least && rounded <= greatest)) throw Error(Error::Overflow, L"Overflow");
  return static_cast<std::int32_t>(rounded);
}

/// Digits with or without a fraction, blanks around them.
double ParseDecimal(std::wstring_view text) {
  std::string digits;
  for (const wchar_t c : Trim(text)) digits += c < 128 ? static_cast<char>(c) : '?';
  double number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [rest, error] = std::from_chars(digits.data(), end, number, std::chars_format::fixed);
  if (error == std::errc::result_out_of_range) throw Error(Error::Overflow, L"Overflow");
  if (error != std::errc() || rest != end || !std::isfinite(number))
    throw Error(Error::TypeMismatch, L"Type mismatch");
  return number;
}

double ToFloat(const clsSprintf::Value& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return ParseDecimal(*text);
  const auto* number = std::get_if<double>(&value);
  return number ? *number : ToInteger(value);
}

std::wstring ToText(const clsSprintf::Value& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return *text;
  if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_wstring(*number);
  std::array<char, 32> digits;
  const int length = std::snprintf(digits.data(), digits.size(), "%.15g", std::get<double>(value));
  return {digits.data(), digits.data() + length};
}

/// Flag, width and precision of a conversion, taken apart.
struct Layout {
  wchar_t flag = 0;
  std::int32_t width = 0;
  std::int32_t precision = -1;  // none
};

/// Cuts the digits off the front of the text.
std::int32_t TakeDigits(std::wstring_view& text) {
  const std::size_t length = std::min(text.find_first_not_of(L"0123456789"), text.size());
  const std::int32_t number = length == 0 ? 0 : ParseNumber16(text.substr(0, length));
  text.remove_prefix(length);
  return number;
}

/// `rest` is the conversion without its "%" and letter.
Layout ReadLayout(std::wstring_view rest) {
  Layout layout;
  if (!rest.empty() && std::wstring_view(L"-0+ #").find(rest[0]) != std::wstring_view::npos) {
    layout.flag = rest[0];
    rest.remove_prefix(1);
  }
  layout.width = TakeDigits(rest);
  if (rest.starts_with(L'.')) {
    rest.remove_prefix(1);
    layout.precision = TakeDigits(rest);
  }
  layout.width = std::max(layout.width, layout.precision);
  return layout;
}

std::wstring Padded(std::wstring text, const Layout& layout) {
  if (layout.precision >= 0)
    text.resize(std::min(text.size(), static_cast<std::size_t>(layout.precision)));
  const auto width = static_cast<std::size_t>(layout.width);
  if (text.size() >= width) return text;
  const std::size_t missing = width - text.size();
  if (layout.flag == L'-') return text.append(missing, L' ');
  return text.insert(0, missing, layout.flag == L'0' ? L'0' : L' ');
}

/// The number as C's printf has it.
template <class Number>
std::wstring Printed(const Layout& layout, wchar_t letter, Number number) {
  std::string format = "%";
  if (layout.flag != 0) format += static_cast<char>(layout.flag);
  format += layout.precision < 0 ? "*" : "*.*";
  format += static_cast<char>(letter);
  const auto print = [&](char* buffer, std::size_t size) {
    return layout.precision < 0 ? std::snprintf(buffer, size, format.c_str(), layout.width, number)
                                : std::snprintf(buffer, size, format.c_str(), layout.width,
                                                layout.precision, number);
  };
  std::string text(static_cast<std::size_t>(print(nullptr, 0)) + 1, '\0');
  print(text.data(), text.size());
  text.pop_back();
  return {text.begin(), text.end()};
}

/// The two hexadecimal digits at the start of the text as a number; -1 when they are not there.
int HexPair(std::wstring_view text) {
  constexpr std::wstring_view digits = L"0123456789abcdef";
  if (text.size() < 2) return -1;
  const std::size_t high = digits.find(LowerCase(text[0]));
  const std::size_t low = digits.find(LowerCase(text[1]));
  if (high == digits.npos || low == digits.npos) return -1;
  return static_cast<int>(high * 16 + low);
}

struct Escape {
  wchar_t letter;
  std::wstring_view result;
};

constexpr Escape Escapes[] = {{L'a', L"\a"}, {L'b', L"\b"}, {L'f', L"\f"}, {L'n', L"\r\n"},
                              {L'r', L"\n"}, {L't', L"\t"}, {L'v', L"\v"}};

}  // namespace

std::wstring clsSprintf::Sprintf(const std::wstring& format, const std::vector<Value>& values,
                                 const CodePage& codePage) {
  const std::size_t expected = CountConversions(format);
  if (expected != values.size()) {
    throw Error(CountError, L"Mismatch of parameters for string " + format + L".  Expected " +
                                std::to_wstring(expected) + L" but received " +
                                std::to_wstring(values.size()) + L".");
  }
  std::wstring result;
  std::size_t position = 0;
  auto value = values.begin();
  for (std::size_t found; (found = format.find(L'%', position)) != format.npos;) {
    result.append(format, position, found - position);
    const Conversion conversion = FindConversion(format, found);
    // A "%" inside a conversion was counted and is none, so the values cannot run out here.
    if (conversion.type == TypeLiteral)
      result += L'%';
    else
      result += BuildFormat(std::wstring_view(format).substr(found, conversion.length),
                            conversion.type, conversion.upper, *value++);
    position = found + conversion.length;
  }
  return TreatBackSlash(result.append(format, position), codePage);
}

std::wstring clsSprintf::BuildFormat(std::wstring_view conversion, std::int32_t type, bool upper,
                                     const Value& value) {
  if (conversion.size() < 2) return {};
  const std::size_t letters = type == TypeLong ? 2 : 1;
  if (conversion.size() <= letters) return {};
  const wchar_t letter = conversion.back();
  const Layout layout = ReadLayout(conversion.substr(1, conversion.size() - 1 - letters));
  switch (type) {
    case TypeString:
      return Padded(upper ? UpperCase(ToText(value)) : ToText(value), layout);
    case TypeInteger:
    case TypeLong:
      return Printed(layout, letter == L'u' ? L'u' : L'd', ToInteger(value));
    case TypeFloat:
      return Printed(layout, letter, ToFloat(value));
    case TypeHexadecimal:
      return Printed(layout, upper ? L'X' : L'x', ToInteger(value));
    default:
      return {};
  }
}

std::wstring clsSprintf::TreatBackSlash(std::wstring_view text, const CodePage& codePage) {
  std::wstring result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != L'\\') {
      result += text[i];
      continue;
    }
    if (++i == text.size()) break;
    const int code = text[i] == L'x' ? HexPair(text.substr(i + 1)) : -1;
    const auto* escape = std::ranges::find(Escapes, text[i], &Escape::letter);
    if (code >= 0) {
      const auto byte = static_cast<std::byte>(code);
      result += codePage.Decode({&byte, 1});
      i += 2;
    } else if (escape != std::end(Escapes)) {
      result += escape->result;
    } else {
      result += text[i];
    }
  }
  return result;
}

}  // namespace orvane
