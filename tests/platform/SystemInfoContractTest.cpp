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
  win32::Desktop desktop{GetModuleHandleW(nullptr)};
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class SystemInfoContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  SystemInfo& system = m_backEnd.desktop.system;
};
TYPED_TEST_SUITE(SystemInfoContract, BackEnds, );

TYPED_TEST(SystemInfoContract, KnowsTheMachine) {
  EXPECT_NE(this->system.ComputerName(), L"");
  EXPECT_NE(this->system.UserName(), L"");
  EXPECT_GE(this->system.OsVersion().major, 5u);
  EXPECT_EQ(this->system.OsVersion().platform, 2u);
  EXPECT_NE(this->system.Module(), 0);
}

TYPED_TEST(SystemInfoContract, NamesFoldersThatExist) {
  auto& files = this->m_backEnd.desktop.files;
  for (const std::wstring& folder : {this->system.ProgramFolder(), this->system.SystemFolder()}) {
    EXPECT_FALSE(folder.empty() || folder.ends_with(L'\\')) << folder;
    EXPECT_TRUE(files.Attributes(folder)) << folder;
  }
}

TYPED_TEST(SystemInfoContract, ReadsTheEnvironment) {
  EXPECT_TRUE(this->system.Environment(L"ComSpec").ends_with(L"cmd.exe"));
  EXPECT_EQ(this->system.Environment(L"ORVANE_NOT_SET"), L"");
}

TYPED_TEST(SystemInfoContract, HasACharacterForEachByte) {
  const auto characters = this->system.AnsiCharacters();
  EXPECT_EQ(std::set<wchar_t>(characters.begin(), characters.end()).size(), 256u);
  for (std::size_t byte = 0; byte < 128; ++byte) {
    EXPECT_EQ(characters[byte], static_cast<wchar_t>(byte));
  }
}

#ifdef _WIN32
TEST(Win32SystemInfo, ReadsLongVariables) {
  const std::wstring value(20'000, L'v');
  SetEnvironmentVariableW(L"ORVANE_LONG", value.c_str());
  EXPECT_TRUE(win32::SystemInfo(nullptr).Environment(L"orvane_long") == value);
  SetEnvironmentVariableW(L"ORVANE_LONG", nullptr);
}

TEST(Win32SystemInfo, AgreesWithTheMemoryDesktopOnPage1252) {
  if (GetACP() != 1252) GTEST_SKIP() << "another code page";
  memory::SystemInfo memory;
  EXPECT_EQ(win32::SystemInfo(nullptr).AnsiCharacters(), memory.AnsiCharacters());
}
#endif

}  // namespace
}  // namespace orvane
