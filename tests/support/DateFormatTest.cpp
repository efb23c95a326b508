#include "support/DateFormat.h"

#include <gtest/gtest.h>

#include <ctime>

#include "platform/memory/Locale.h"

namespace orvane {
namespace {

using Fact = Locale::Fact;

constexpr LocalTime Afternoon{2024, 3, 5, 2, 14, 7, 9};  // a Tuesday
constexpr LocalTime Midnight{2024, 12, 31, 2, 0, 0, 0};
constexpr LocalTime NewYear{2022, 1, 1, 6, 12, 30, 59};  // a Saturday

struct Row {
  LocalTime time;
  std::wstring format;
  std::wstring text;
};

TEST(DateFormat, Codes) {
  const Row rows[] = {
      {Afternoon, L"d dd ddd dddd", L"5 05 Tue Tuesday"},
      {Afternoon, L"ddddd|dddddd|ttttt", L"05/03/2024|Tuesday, 5 March 2024|14:07:09"},
      {Afternoon, L"c", L"05/03/2024 14:07:09"},
      {Midnight, L"c", L"31/12/2024"},
      {Afternoon, L"", L"05/03/2024 14:07:09"},
      {Afternoon, L"m mm mmm mmmm", L"3 03 Mar March"},
      {Afternoon, L"yy yyyy y", L"24 2024 65"},
      {Midnight, L"y", L"366"},
      {Afternoon, L"w ww q", L"3 10 1"},
      {NewYear, L"w ww q y", L"7 1 1 1"},
      {Midnight, L"ww q", L"53 4"},
      {Afternoon, L"h hh n nn s ss", L"14 14 7 07 9 09"},
      {Midnight, L"h:n:s|hh:nn:ss", L"0:0:0|00:00:00"},
      // The letters' case does not count.
      {Afternoon, L"dd/mmm/yy @ h:Nn:Ss", L"05/Mar/24 @ 14:07:09"},
      {Afternoon, L"DD MMM YYYY", L"05 Mar 2024"},
      // Behind an hour, a month's code is the minutes; only once, and no month's name.
      {Afternoon, L"h:m hh:mm m", L"14:7 14:07 3"},
      {Afternoon, L"h mmm m", L"14 Mar 3"},
      {Afternoon, L"hm/m", L"147/3"},
      // A mark of the half of the day makes all hours count to twelve.
      {Afternoon, L"h:nn AM/PM", L"2:07 PM"},
      {Afternoon, L"h am/pm A/P a/p AMPM", L"2 pm P p PM"},
      {Midnight, L"hh AM/PM", L"12 AM"},
      {NewYear, L"h a/p", L"12 p"},
      {Afternoon, L"h \"am/pm\" \\am/pm", L"14 am/pm a7/p3"},
      // Texts that stand for themselves.
      {Afternoon, L"\"day\" d \\d\\\\", L"day 5 d\\"},
      {Afternoon, L"\"open dd", L"open dd"},
      {Afternoon, L"\"\"d\\", L"5"},
      {Afternoon, L"[x] t tt !", L"[x] t tt !"},
      // Runs longer than any code are several.
      {Afternoon, L"ddddddd", L"Tuesday, 5 March 20245"},
      {Afternoon, L"yyyyy", L"202465"},
      {Afternoon, L"sss", L"099"},
  };
  memory::Locale locale;
  for (const Row& row : rows)
    EXPECT_EQ(row.text, FormatDate(locale, row.time, row.format)) << row.format;
}

TEST(DateFormat, NamedForms) {
  const Row rows[] = {
      {Afternoon, L"General Date", L"05/03/2024 14:07:09"},
      {Afternoon, L"long date", L"Tuesday, 5 March 2024"},
      {Afternoon, L"LONG DATE", L"Tuesday, 5 March 2024"},
      {Afternoon, L"medium date", L"05-Mar-24"},
      {Afternoon, L"short date", L"05/03/2024"},
      {Afternoon, L"long time", L"14:07:09"},
      {Afternoon, L"medium time", L"02:07 PM"},
      {Afternoon, L"short time", L"14:07"},
  };
  memory::Locale locale;
  for (const Row& row : rows)
    EXPECT_EQ(row.text, FormatDate(locale, row.time, row.format)) << row.format;
}

TEST(DateFormat, FollowsTheLocale) {
  memory::Locale locale;
  locale.Set(Fact::DateSeparator, L".");
  locale.Set(Fact::TimeSeparator, L"'");
  locale.Set(Fact::Afternoon, L"nachm.");
  locale.Set(Fact::MonthAbbreviation, L"M\x00E4r", 3);
  locale.Set(Fact::LongDatePattern, L"dddd', den 'd'. 'M''yyyy gg y yyyyy");
  locale.Set(Fact::TimePattern, L"h:mm tt t 'Uhr");
  EXPECT_EQ(L"05.M\x00E4r.24 14'07", FormatDate(locale, Afternoon, L"dd/mmm/yy h:nn"));
  EXPECT_EQ(L"2 nachm.", FormatDate(locale, Afternoon, L"h AMPM"));
  EXPECT_EQ(L"Tuesday, den 5. 3'2024  24 2024", FormatDate(locale, Afternoon, L"long date"));
  EXPECT_EQ(L"2:07 nachm. n Uhr", FormatDate(locale, Afternoon, L"long time"));
}

TEST(DateFormat, LongFormatsTakeLinearTime) {
  memory::Locale locale;
  for (const wchar_t* piece :
       {L"d", L"\"", L"a", L"\\", L"am/pm", L"am/p", L"ttttt", L"c", L"h:m"}) {
    std::wstring format;
    while (format.size() < 10'000) format += piece;
    const std::clock_t start = std::clock();
    FormatDate(locale, Afternoon, format);
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC) << piece;
  }
}

}  // namespace
}  // namespace orvane
