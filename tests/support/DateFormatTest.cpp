#include "support/DateFormat.h"

#include <gtest/gtest.h>

#include <ctime>

#include "memory/Locale.h"

namespace orvane {
namespace {

using Fact = Locale::Fact;

constexpr LocalTime Afternoon{2024, 3, 5, 2, 14, 7, 9};  // a Tuesday
constexpr LocalTime Midnight{2024, 12, 31, 2, 0, 0, 0};
constexpr LocalTime NewYear{2022, 1, 1, 6, 12, 30, 59};  // a Saturday

TEST(DateFormat, CodesAndNamedForms) {
  const struct {
    LocalTime time;
    std::wstring format;
    std::wstring text;
  } rows[] = {
      {Afternoon, L"d dd ddd dddd", L"5 05 Tue Tuesday"},
      {Afternoon, L"ddddd|dddddd|ttttt", L"05/03/2024|Tuesday, 5 March 2024|14:07:09"},
      {Midnight, L"c", L"31/12/2024"},
      {Afternoon, L"m mm mmm mmmm", L"3 03 Mar March"},
      {Afternoon, L"yy yyyy y w ww q", L"24 2024 65 3 10 1"},
      {NewYear, L"y w ww q h a/p", L"1 7 1 1 12 p"},
      {Midnight, L"y ww q hh A/P", L"366 53 4 12 A"},
      {Afternoon, L"h hh n nn s ss", L"14 14 7 07 9 09"},
      // The letters' case does not count.
      {Afternoon, L"DD/mmm/yy @ h:Nn:Ss", L"05/Mar/24 @ 14:07:09"},
      // Behind an hour, a month's code is the minutes; only once, and no month's name.
      {Afternoon, L"h:m hh:mm m h mmm m", L"14:7 14:07 3 14 Mar 3"},
      // A mark of the half of the day makes all hours count to twelve.
      {Afternoon, L"h am/pm A/P a/p AMPM", L"2 pm P p PM"},
      {Afternoon, L"h \"am/pm\" \\am/pm", L"14 am/pm a7/p3"},
      // Texts that stand for themselves.
      {Afternoon, L"\"day\" d \\d\\\\ \"\"", L"day 5 d\\ "},
      {Afternoon, L"d \"open dd", L"5 open dd"},
      {Afternoon, L"[x] t tt !\\", L"[x] t tt !"},
      // Runs longer than any code are several.
      {Afternoon, L"ddddddd yyyyy sss", L"Tuesday, 5 March 20245 202465 099"},
      {Afternoon, L"general DATE", L"05/03/2024 14:07:09"},
      {Afternoon, L"", L"05/03/2024 14:07:09"},
      {Afternoon, L"long date", L"Tuesday, 5 March 2024"},
      {Afternoon, L"medium date", L"05-Mar-24"},
      {Afternoon, L"medium time", L"02:07 PM"},
      {Afternoon, L"short time", L"14:07"},
  };
  memory::Locale locale;
  for (const auto& row : rows)
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
  EXPECT_EQ(L"Tuesday, den 5. 3'2024  24 2024", FormatDate(locale, Afternoon, L"long date"));
  EXPECT_EQ(L"2:07 nachm. n Uhr", FormatDate(locale, Afternoon, L"long time"));
}

TEST(DateFormat, LongFormatsTakeLinearTime) {
  memory::Locale locale;
  const std::clock_t start = std::clock();
  for (const wchar_t* piece : {L"d", L"\"", L"a", L"\\", L"am/pm", L"am/p", L"ttttt", L"c"}) {
    std::wstring format;
    while (format.size() < 10'000) format += piece;
    FormatDate(locale, Afternoon, format);
  }
  EXPECT_LT(std::clock() - start, 3 * CLOCKS_PER_SEC);
}

}  // namespace
}  // namespace orvane
