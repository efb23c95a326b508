#pragma once

#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Locale.h"

namespace orvane {

/// A date and time in the usual format codes, in any letter case:
///   c d dd ddd dddd ddddd dddddd w ww m mm mmm mmmm q y yy yyyy
///   h hh n nn s ss ttttt AM/PM am/pm A/P a/p AMPM
/// "/" and ":" are the locale's separators, m and mm behind an hour are minutes, text in double
/// quotes and the character behind a backslash stand for themselves, and so does everything else.
/// Or in a named form: "general date", "long date", "medium date", "short date", "long time",
/// "medium time", "short time". Without a format it is the general date.
std::wstring FormatDate(Locale& locale, const LocalTime& time, std::wstring_view format);

}  // namespace orvane
