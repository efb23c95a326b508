#include "support/DateFormat.h"

#include <algorithm>
#include <iterator>

#include "support/Text.h"

namespace orvane {
namespace {

using Fact = Locale::Fact;

std::wstring Digits(int number, std::size_t width = 1) {
  std::wstring digits = std::to_wstring(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), L'0');
  return digits;
}

int DayOfYear(const LocalTime& time) {
  constexpr int Before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const bool leap = (time.year % 4 == 0 && time.year % 100 != 0) || time.year % 400 == 0;
  return Before[std::clamp(time.month, 1, 12) - 1] + (leap && time.month > 2 ? 1 : 0) + time.day;
}

/// Week 1 holds the first of January; weeks begin on Sunday.
int WeekOfYear(const LocalTime& time) {
  const int day = DayOfYear(time) - 1;
  const int firstWeekday = (time.dayOfWeek - day % 7 + 7) % 7;
  return (day + firstWeekday) / 7 + 1;
}

int Hour12(int hour) {
  return hour % 12 == 0 ? 12 : hour % 12;
}

/// Length of the run of one letter, whatever its case, at the start of the text.
std::size_t RunLength(std::wstring_view text) {
  const wchar_t letter = LowerCase(text[0]);
  const auto end = std::find_if(text.begin(), text.end(),
                                [letter](wchar_t other) { return LowerCase(other) != letter; });
  return static_cast<std::size_t>(end - text.begin());
}

std::wstring HalfOfDay(Locale& locale, const LocalTime& time) {
  return locale.Text(time.hour < 12 ? Fact::Morning : Fact::Afternoon);
}

/// One field of a date picture of Windows ("Day, Month, Year, and Era Format Pictures", "Hour,
/// Minute, and Second Format Pictures"); letters that are no field stand for themselves.
std::wstring PictureField(Locale& locale, const LocalTime& time, std::wstring_view run) {
  const std::size_t count = run.size();
  const std::size_t width = std::min<std::size_t>(count, 2);
  switch (run[0]) {
    case L'd':
      if (count <= 2) return Digits(time.day, width);
      return locale.Text(count == 3 ? Fact::DayAbbreviation : Fact::DayName, time.dayOfWeek);
    case L'M':
      if (count <= 2) return Digits(time.month, width);
      return locale.Text(count == 3 ? Fact::MonthAbbreviation : Fact::MonthName, time.month);
    case L'y':
      return count <= 2 ? Digits(time.year % 100, width) : Digits(time.year, 4);
    case L'H':
      return Digits(time.hour, width);
    case L'h':
      return Digits(Hour12(time.hour), width);
    case L'm':
      return Digits(time.minute, width);
    case L's':
      return Digits(time.second, width);
    case L't':
      return count == 1 ? HalfOfDay(locale, time).substr(0, 1) : HalfOfDay(locale, time);
    case L'g':
      return {};  // the era, which the Gregorian calendar does not name
    default:
      return std::wstring(run);
  }
}

/// The text of one of the locale's own patterns.
std::wstring FormatPicture(Locale& locale, const LocalTime& time, std::wstring_view picture) {
  std::wstring text;
  while (!picture.empty()) {
    if (picture[0] == L'\'') {
      const std::size_t end = std::min(picture.find(L'\'', 1), picture.size());
      // Two quotes are one.
      text += end == 1 ? std::wstring_view(L"'") : picture.substr(1, end - 1);
      picture.remove_prefix(std::min(end + 1, picture.size()));
      continue;
    }
    const std::size_t end = std::min(picture.find_first_not_of(picture[0]), picture.size());
    text += PictureField(locale, time, picture.substr(0, end));
    picture.remove_prefix(end);
  }
  return text;
}

std::wstring GeneralDate(Locale& locale, const LocalTime& time) {
  std::wstring text = FormatPicture(locale, time, locale.Text(Fact::ShortDatePattern));
  if (time.hour == 0 && time.minute == 0 && time.second == 0) return text;
  return text + L" " + FormatPicture(locale, time, locale.Text(Fact::TimePattern));
}

/// How the half of the day is written.
struct HalfMark {
  std::wstring_view code;
  std::wstring_view morning;
  std::wstring_view afternoon;
};

constexpr HalfMark HalfMarks[] = {
    {L"am/pm", L"am", L"pm"}, {L"a/p", L"a", L"p"}, {L"ampm", L"", L""},  // the locale's words
};

const HalfMark* HalfMarkAt(std::wstring_view text) {
  const auto found =
      std::find_if(std::begin(HalfMarks), std::end(HalfMarks), [text](const HalfMark& mark) {
        return EqualIgnoringCase(text.substr(0, mark.code.size()), mark.code);
      });
  return found == std::end(HalfMarks) ? nullptr : &*found;
}

/// The text behind a quotation mark or backslash that begins `text`, and how much it takes.
std::wstring_view Verbatim(std::wstring_view text, std::size_t& length) {
  if (text[0] == L'\\') {
    length = std::min<std::size_t>(2, text.size());
    return text.substr(1, length - 1);
  }
  const std::size_t end = std::min(text.find(L'"', 1), text.size());
  length = std::min(end + 1, text.size());
  return text.substr(1, end - 1);
}

/// Longest code of a letter; a longer run is several codes.
std::size_t LongestCode(wchar_t letter) {
  switch (letter) {
    case L'd':
      return 6;
    case L'm':
    case L'y':
      return 4;
    case L'w':
    case L'h':
    case L'n':
    case L's':
      return 2;
    default:
      return 1;
  }
}

/// Writes a text in the format codes; one pass over the format.
class CodeWriter {
 public:
  CodeWriter(Locale& locale, const LocalTime& time, std::wstring_view format)
      : m_locale(locale), m_time(time), m_rest(format), m_twelveHours(HasHalfMark(format)) {}

  std::wstring Write() {
    while (!m_rest.empty()) m_rest.remove_prefix(WriteNext());
    return std::move(m_text);
  }

 private:
  static bool HasHalfMark(std::wstring_view format) {
    while (!format.empty()) {
      std::size_t length = 1;
      if (format[0] == L'"' || format[0] == L'\\') {
        Verbatim(format, length);
      } else if (HalfMarkAt(format)) {
        return true;
      }
      format.remove_prefix(length);
    }
    return false;
  }

  /// Writes what stands at the start of the rest; how many characters that was.
  std::size_t WriteNext() {
    const wchar_t letter = LowerCase(m_rest[0]);
    std::size_t length = 1;
    if (letter == L'"' || letter == L'\\') {
      m_text += Verbatim(m_rest, length);
      return length;
    }
    if (const HalfMark* mark = HalfMarkAt(m_rest)) {
      WriteHalf(*mark);
      return mark->code.size();
    }
    if (letter == L't' && EqualIgnoringCase(m_rest.substr(0, 5), L"ttttt")) {
      m_text += FormatPicture(m_locale, m_time, m_locale.Text(Fact::TimePattern));
      return 5;
    }
    length = std::min(RunLength(m_rest.substr(0, LongestCode(letter))), LongestCode(letter));
    if (letter == L'y' && length == 3) length = 2;
    WriteCode(letter, length);
    return length;
  }

  void WriteHalf(const HalfMark& mark) {
    if (mark.morning.empty()) {
      m_text += HalfOfDay(m_locale, m_time);
      return;
    }
    const std::wstring_view half = m_time.hour < 12 ? mark.morning : mark.afternoon;
    m_text += m_rest[0] == L'A' ? UpperCase(half) : std::wstring(half);
  }

  void WriteCode(wchar_t letter, std::size_t length) {
    const bool minutes = letter == L'm' && length <= 2 && m_afterHour;
    switch (minutes ? L'n' : letter) {
      case L'c':
        m_text += GeneralDate(m_locale, m_time);
        break;
      case L'd':
        WriteDay(length);
        break;
      case L'w':
        m_text += Digits(length == 1 ? m_time.dayOfWeek + 1 : WeekOfYear(m_time));
        break;
      case L'm':
        WriteMonth(length);
        break;
      case L'q':
        m_text += Digits((m_time.month - 1) / 3 + 1);
        break;
      case L'y':
        WriteYear(length);
        break;
      case L'h':
        m_text += Digits(m_twelveHours ? Hour12(m_time.hour) : m_time.hour, length);
        break;
      case L'n':
        m_text += Digits(m_time.minute, length);
        break;
      case L's':
        m_text += Digits(m_time.second, length);
        break;
      case L'/':
        m_text += m_locale.Text(Fact::DateSeparator);
        return;
      case L':':
        m_text += m_locale.Text(Fact::TimeSeparator);
        return;
      default:
        m_text += m_rest[0];
        return;
    }
    m_afterHour = letter == L'h';
  }

  void WriteDay(std::size_t length) {
    switch (length) {
      case 3:
        m_text += m_locale.Text(Fact::DayAbbreviation, m_time.dayOfWeek);
        break;
      case 4:
        m_text += m_locale.Text(Fact::DayName, m_time.dayOfWeek);
        break;
      case 5:
        m_text += FormatPicture(m_locale, m_time, m_locale.Text(Fact::ShortDatePattern));
        break;
      case 6:
        m_text += FormatPicture(m_locale, m_time, m_locale.Text(Fact::LongDatePattern));
        break;
      default:
        m_text += Digits(m_time.day, length);
    }
  }

  void WriteMonth(std::size_t length) {
    if (length <= 2) {
      m_text += Digits(m_time.month, length);
    } else {
      m_text +=
          m_locale.Text(length == 3 ? Fact::MonthAbbreviation : Fact::MonthName, m_time.month);
    }
  }

  void WriteYear(std::size_t length) {
    m_text += length == 1   ? Digits(DayOfYear(m_time))
              : length == 2 ? Digits(m_time.year % 100, 2)
                            : Digits(m_time.year, 4);
  }

  Locale& m_locale;
  const LocalTime& m_time;
  std::wstring_view m_rest;
  bool m_twelveHours;
  bool m_afterHour = false;
  std::wstring m_text;
};

struct NamedForm {
  std::wstring_view name;
  std::wstring_view format;
};

constexpr NamedForm NamedForms[] = {
    {L"", L"c"},
    {L"general date", L"c"},
    {L"long date", L"dddddd"},
    {L"medium date", L"dd-mmm-yy"},
    {L"short date", L"ddddd"},
    {L"long time", L"ttttt"},
    {L"medium time", L"hh:nn AMPM"},
    {L"short time", L"hh:nn"},
};

}  // namespace

std::wstring FormatDate(Locale& locale, const LocalTime& time, std::wstring_view format) {
  for (const NamedForm& form : NamedForms) {
    if (EqualIgnoringCase(format, form.name)) format = form.format;
  }
  return CodeWriter(locale, time, format).Write();
}

}  // namespace orvane
