#include <set>

#include "platform/AnyDesktop.h"

namespace orvane {
namespace {

/// The nouns that only tell: the clock, the locale, the machine.
class SystemContract : public AnyDesktop {
 protected:
  std::size_t CountNames(Locale::Fact fact, int first, int last) {
    std::set<std::wstring> names;
    for (int i = first; i <= last; ++i) names.insert(locale.Text(fact, i));
    names.erase(L"");
    EXPECT_EQ(locale.Text(fact, first - 1), L"");
    EXPECT_EQ(locale.Text(fact, last + 1), L"");
    return names.size();
  }

  Clock& clock = m_platform.clock;
  Locale& locale = m_platform.locale;
  SystemInfo& system = m_platform.system;
};

INSTANTIATE_TEST_SUITE_P(, SystemContract, EveryDesktop(), NameOfDesktop);

TEST_P(SystemContract, ClockTicksWhileItPauses) {
  const std::uint32_t start = clock.Ticks();
  clock.Pause(60);
  EXPECT_GE(clock.Ticks() - start, 50u);
  EXPECT_LT(clock.Ticks() - start, 5'000u);
  const LocalTime now = clock.Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12 && now.day >= 1 && now.day <= 31);
}

TEST_P(SystemContract, LocaleNamesMonthsAndDays) {
  EXPECT_EQ(CountNames(Locale::Fact::MonthName, 1, 12), 12u);
  EXPECT_EQ(CountNames(Locale::Fact::MonthAbbreviation, 1, 12), 12u);
  EXPECT_EQ(CountNames(Locale::Fact::DayName, 0, 6), 7u);
  EXPECT_EQ(CountNames(Locale::Fact::DayAbbreviation, 0, 6), 7u);
  for (const auto fact :
       {Locale::Fact::DateSeparator, Locale::Fact::TimeSeparator, Locale::Fact::ShortDatePattern,
        Locale::Fact::LongDatePattern, Locale::Fact::TimePattern}) {
    EXPECT_NE(locale.Text(fact), L"");
  }
}

TEST_P(SystemContract, MachineKnowsItsFoldersAndEnvironment) {
  EXPECT_NE(system.ComputerName(), L"");
  EXPECT_NE(system.UserName(), L"");
  EXPECT_EQ(system.OsVersion().platform, 2u);
  for (const std::wstring& folder : {system.ProgramFolder(), system.SystemFolder()}) {
    EXPECT_FALSE(folder.empty() || folder.ends_with(L'\\')) << folder;
    EXPECT_TRUE(m_platform.files.Attributes(folder)) << folder;
  }
  EXPECT_TRUE(system.Environment(L"ComSpec").ends_with(L"cmd.exe"));
  EXPECT_EQ(system.Environment(L"ORVANE_NOT_SET"), L"");
}

TEST_P(SystemContract, EachByteHasACharacterOfItsOwn) {
  const auto characters = system.AnsiCharacters();
  EXPECT_EQ(std::set<wchar_t>(characters.begin(), characters.end()).size(), 256u);
  for (std::size_t byte = 0; byte < 128; ++byte) {
    EXPECT_EQ(characters[byte], static_cast<wchar_t>(byte));
  }
}

#ifdef _WIN32
TEST(Win32Locale, StartsTheWeekOnSunday) {
  const SYSTEMTIME sunday{2024, 1, 0, 7, 0, 0, 0, 0};
  wchar_t name[80];
  ASSERT_GT(GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &sunday, L"dddd", name, 80, nullptr), 0);
  EXPECT_EQ(win32::Locale().Text(Locale::Fact::DayName, 0), name);
}

TEST(Win32SystemInfo, ReadsLongVariables) {
  const std::wstring value(20'000, L'v');
  SetEnvironmentVariableW(L"ORVANE_LONG", value.c_str());
  EXPECT_TRUE(win32::SystemInfo(nullptr).Environment(L"orvane_long") == value);
  SetEnvironmentVariableW(L"ORVANE_LONG", nullptr);
}

TEST(Win32SystemInfo, TakesTheSystemsCodePageWhereTheProcessHasAnotherKind) {
  const UINT rows[][3] = {{1252, 1251, 1252},
                          {CP_UTF8, 1251, 1251},
                          {CP_UTF8, CP_UTF8, 1252},
                          {932, 932, 1252},
                          {CP_UTF8, 0, 1252}};
  for (const auto& [process, system, page] : rows)
    EXPECT_EQ(win32::SystemInfo::SingleBytePage(process, system), page) << process;
}

TEST(Win32SystemInfo, AgreesWithTheMemoryDesktopOnPage1252) {
  if (GetACP() != 1252) GTEST_SKIP() << "another code page";
  EXPECT_EQ(win32::SystemInfo(nullptr).AnsiCharacters(), memory::SystemInfo().AnsiCharacters());
}
#endif

}  // namespace
}  // namespace orvane
