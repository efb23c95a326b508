#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "support/CodePage.h"

namespace orvane {

/// Formats values after a pattern in the manner of printf, and turns backslash escapes into their
/// characters.
class clsSprintf {
 public:
  using Value = std::variant<std::int32_t, double, std::wstring>;

  static constexpr std::int32_t TypeString = 1;
  static constexpr std::int32_t TypeInteger = 2;
  static constexpr std::int32_t TypeLong = 3;
  static constexpr std::int32_t TypeFloat = 4;
  static constexpr std::int32_t TypeLiteral = 5;
  static constexpr std::int32_t TypeHexadecimal = 6;

  /// Conversions: %s %S (upper case) %d %i %u %ld %f %e %g %E %G %x %X %%, each with one of the
  /// flags "-", "+", "0", " ", "#", a width and a precision. Escapes in the result are replaced,
  /// those in the values too. Error 450 when there are more or fewer values than conversions, 93
  /// for a conversion that does not exist or end, 13 or 6 for a value that cannot be converted.
  static std::wstring Sprintf(const std::wstring& format, const std::vector<Value>& values,
                              const CodePage& codePage);

  /// One conversion, from its "%" to its letter. Error 6 when width or precision exceed 32767.
  static std::wstring BuildFormat(std::wstring_view conversion, std::int32_t type, bool upper,
                                  const Value& value);

  /// \\ \a \b \f \t \v as in C, \n is CR LF, \r is LF, \x and two hexadecimal digits the code
  /// page's character of that code. Any other backslash is taken out.
  static std::wstring TreatBackSlash(std::wstring_view text, const CodePage& codePage);
};

}  // namespace orvane
