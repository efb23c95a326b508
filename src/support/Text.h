#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Lower case, character by character and independent of any locale.
wchar_t LowerCase(wchar_t character);
std::wstring LowerCase(std::wstring_view text);

/// Upper case of what LowerCase knows.
wchar_t UpperCase(wchar_t character);
std::wstring UpperCase(std::wstring_view text);

/// Whether the texts differ in case at most.
bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b);

/// Without the blanks at both ends.
std::wstring_view Trim(std::wstring_view text);
/// Without the blanks at the end.
std::wstring_view TrimEnd(std::wstring_view text);

}  // namespace orvane
