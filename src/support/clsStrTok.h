#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

/// Splits a text at delimiters and gives the tokens as values of a type.
class clsStrTok {
 public:
  static constexpr std::int32_t TypeInteger = 2;  // 16 bits
  static constexpr std::int32_t TypeLong = 3;
  static constexpr std::int32_t TypeString = 8;
  static constexpr std::int32_t TypeBoolean = 11;

  /// Empty (the first alternative) where there is no token or no such type.
  using Token = std::variant<std::monostate, std::int16_t, std::int32_t, std::wstring, bool>;

  void Value(std::wstring text);
  void Reset() { Value({}); }

  /// The next run of characters that are no delimiters. Error 13 or 6 when it is no value of the
  /// type; "True" and "False", in any case, and numbers are booleans.
  Token GetNextToken(std::wstring_view delimiters, std::int32_t type);

 private:
  std::wstring m_text;
  std::size_t m_position = 0;
};

}  // namespace orvane
