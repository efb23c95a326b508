#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// Splits a text at the separators; how many fields there are. With quoting, a field in apostrophes
/// or double quotes may hold separators. `fields` ends up one longer than that, the last one empty.
/// Separators and white space may be written as escapes.
std::int32_t SplitFields(const std::wstring& text, std::vector<std::wstring>& fields, bool quoting,
                         std::wstring_view separators, std::wstring_view whiteSpace);

/// Turns the escapes \a \b \f \n \r \t \v and \' \" \? \\ into their characters; a backslash in
/// front of anything else stays.
std::wstring DecodeEscapes(std::wstring_view text);

}  // namespace orvane
