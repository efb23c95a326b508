#include <gtest/gtest.h>

#include <set>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include "platform/win32/Desktop.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
};
#ifdef _WIN32
struct OnWindows {
  win32::Desktop desktop{nullptr};
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class ClockContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Clock& clock = m_backEnd.desktop.clock;
};
TYPED_TEST_SUITE(ClockContract, BackEnds, );

TYPED_TEST(ClockContract, TicksWhileItPauses) {
  const std::uint32_t start = this->clock.Ticks();
  this->clock.Pause(60);
  EXPECT_GE(this->clock.Ticks() - start, 50u);
  EXPECT_LT(this->clock.Ticks() - start, 5'000u);
  const LocalTime now = this->clock.Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12 && now.day >= 1 && now.day <= 31);
  EXPECT_TRUE(now.dayOfWeek >= 0 && now.dayOfWeek <= 6);
}

TEST(MemoryClock, KeepsTheCalendar) {
  memory::Desktop desktop;
  desktop.clock.Set({.year = 2024, .month = 2, .day = 28, .hour = 23, .minute = 59, .second = 59});
  desktop.clock.Advance(1'000);
  LocalTime now = desktop.clock.Now();
  EXPECT_EQ(std::tuple(now.month, now.day, now.dayOfWeek, now.hour), std::tuple(2, 29, 4, 0));
  desktop.clock.Advance(24 * 3600 * 1000);
  now = desktop.clock.Now();
  EXPECT_EQ(std::tuple(now.month, now.day, now.dayOfWeek), std::tuple(3, 1, 5));
  desktop.clock.SetTicks(0xFFFFFFFF);
  desktop.clock.Advance(2);
  EXPECT_EQ(desktop.clock.Ticks(), 1u);
}

template <class BackEnd>
class LocaleContract : public testing::Test {
 protected:
  std::size_t CountNames(Locale::Fact fact, int first, int last) {
    std::set<std::wstring> names;
    for (int i = first; i <= last; ++i) names.insert(locale.Text(fact, i));
    names.erase(L"");
    EXPECT_EQ(locale.Text(fact, first - 1), L"");
    EXPECT_EQ(locale.Text(fact, last + 1), L"");
    return names.size();
  }

  BackEnd m_backEnd;
  Locale& locale = m_backEnd.desktop.locale;
};
TYPED_TEST_SUITE(LocaleContract, BackEnds, );

TYPED_TEST(LocaleContract, NamesMonthsAndDays) {
  EXPECT_EQ(this->CountNames(Locale::Fact::MonthName, 1, 12), 12u);
  EXPECT_EQ(this->CountNames(Locale::Fact::MonthAbbreviation, 1, 12), 12u);
  EXPECT_EQ(this->CountNames(Locale::Fact::DayName, 0, 6), 7u);
  EXPECT_EQ(this->CountNames(Locale::Fact::DayAbbreviation, 0, 6), 7u);
  for (const auto fact :
       {Locale::Fact::DateSeparator, Locale::Fact::TimeSeparator, Locale::Fact::ShortDatePattern,
        Locale::Fact::LongDatePattern, Locale::Fact::TimePattern}) {
    EXPECT_NE(this->locale.Text(fact), L"");
  }
}

#ifdef _WIN32
TEST(Win32Locale, StartsTheWeekOnSunday) {
  const SYSTEMTIME sunday{2024, 1, 0, 7, 0, 0, 0, 0};
  wchar_t name[80];
  ASSERT_GT(GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &sunday, L"dddd", name, 80, nullptr), 0);
  EXPECT_EQ(win32::Locale().Text(Locale::Fact::DayName, 0), name);
}
#endif

}  // namespace
}  // namespace orvane
