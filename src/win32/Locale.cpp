#include "win32/Locale.h"

#include <windows.h>

namespace orvane::win32 {

namespace {

/// Windows' number of a fact; 0 for an index that it does not have.
LCTYPE LocaleType(Locale::Fact fact, int index) {
  const bool month = index >= 1 && index <= 12;
  const bool day = index >= 0 && index <= 6;
  // Windows numbers the days from Monday.
  const auto offset = static_cast<LCTYPE>(month ? index - 1 : 0);
  const auto dayOffset = static_cast<LCTYPE>(day ? (index + 6) % 7 : 0);
  switch (fact) {
    case Locale::Fact::DateSeparator:
      return LOCALE_SDATE;
    case Locale::Fact::TimeSeparator:
      return LOCALE_STIME;
    case Locale::Fact::Morning:
      return LOCALE_S1159;
    case Locale::Fact::Afternoon:
      return LOCALE_S2359;
    case Locale::Fact::MonthName:
      return month ? LOCALE_SMONTHNAME1 + offset : 0;
    case Locale::Fact::MonthAbbreviation:
      return month ? LOCALE_SABBREVMONTHNAME1 + offset : 0;
    case Locale::Fact::DayName:
      return day ? LOCALE_SDAYNAME1 + dayOffset : 0;
    case Locale::Fact::DayAbbreviation:
      return day ? LOCALE_SABBREVDAYNAME1 + dayOffset : 0;
    case Locale::Fact::ShortDatePattern:
      return LOCALE_SSHORTDATE;
    case Locale::Fact::LongDatePattern:
      return LOCALE_SLONGDATE;
    case Locale::Fact::TimePattern:
      return LOCALE_STIMEFORMAT;
  }
  return 0;
}

}  // namespace

std::wstring Locale::Text(Fact fact, int index) {
  wchar_t text[128];  // Windows: none of these is longer than 80 characters
  const LCTYPE type = LocaleType(fact, index);
  const int length =
      type == 0 ? 0 : GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text, std::size(text));
  return length > 0 ? std::wstring(text, static_cast<std::size_t>(length) - 1) : std::wstring();
}

}  // namespace orvane::win32
