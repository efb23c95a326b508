// Two windows, each in a process of its own, that save one recently-used list.

#include <gtest/gtest.h>

#include "host/Effects.h"
#include "host/Modes.h"
#include "menudata/clsMRU.h"
#include "win32/Registry.h"

namespace orvane::host {
namespace {

constexpr wchar_t List[] = L"Software\\Tarnwick\\Orvane Test\\";
constexpr int Entries = 40;

}  // namespace

int SaveListOften(const std::wstring& text) {
  win32::Registry registry;
  clsMRU list(registry);
  list.Path(List);
  list.MaxFileCount(Entries);
  for (int i = 0; i < Entries; ++i) list.AddFile(text + std::to_wstring(i));
  for (int i = 0; i < 100; ++i) list.Save();
  return 0;
}

TEST(SharedList, IsOneOfTheTwoThatWereSavedAtOnce) {
  win32::Registry registry;
  clsMRU list(registry);
  list.Path(List);
  for (int round = 0; round < 8; ++round) {
    const HostProcess one(L"--save-list a");
    const HostProcess other(L"--save-list b");
    EXPECT_TRUE(WaitFor([&] { return one.HasEnded() && other.HasEnded(); }));
    list.Load(Entries);
    ASSERT_EQ(list.FileCount(), Entries);
    for (int i = 1; i <= Entries; ++i) EXPECT_EQ(list.File(i)[0], list.File(1)[0]) << i;
  }
  RegDeleteTreeW(HKEY_CURRENT_USER, List);
}

}  // namespace orvane::host
