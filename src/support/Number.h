#pragma once

#include <cstdint>
#include <string_view>

namespace orvane {

// Every number that is read from text is read here: decimal digits with an optional sign, blanks
// and tabs around them allowed. Anything else, nothing too, is an Error 13 (type mismatch); a
// number outside the range an Error 6 (overflow).

std::int32_t ParseNumber(std::wstring_view text);
std::int16_t ParseNumber16(std::wstring_view text);

/// The decimal digits at the start of the text; 0 when there are none or they exceed 2147483647.
std::int32_t ParseLeadingNumber(std::wstring_view text);

}  // namespace orvane
