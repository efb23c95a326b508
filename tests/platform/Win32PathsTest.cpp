#ifdef _WIN32
#include <gtest/gtest.h>

#include "win32/NativePath.h"
#include "win32/Patience.h"

namespace orvane::win32 {
namespace {

TEST(Win32Paths, TellsSharesFromTheRest) {
  for (const wchar_t* path : {L"\\\\server\\share\\a", L"\\\\?\\UNC\\server\\share"}) {
    EXPECT_TRUE(IsOnNetwork(path)) << path;
  }
  for (const wchar_t* path :
       {L"\\\\?\\C:\\a", L"\\\\.\\pipe\\a", L"C:\\a", L"relative\\a", L"", L"\\\\?\\"}) {
    EXPECT_FALSE(IsOnNetwork(path)) << path;
  }
}

TEST(Win32Paths, LiftsTheLimitOnlyWhereItIsNeeded) {
  const std::wstring name = L"\\" + std::wstring(250, L'n');
  EXPECT_EQ(NativePath(L"C:\\a"), L"C:\\a");
  EXPECT_EQ(NativePath(L"C:" + name), L"\\\\?\\C:" + name);
  EXPECT_EQ(NativePath(L"C:\\a/..\\." + name), L"\\\\?\\C:" + name);
  EXPECT_EQ(NativePath(L"\\\\server\\share" + name), L"\\\\?\\UNC\\server\\share" + name);
  EXPECT_EQ(NativePath(L"\\\\?\\C:" + name), L"\\\\?\\C:" + name);
}

TEST(Win32Patience, LeavesSlowWorkToItself) {
  const HANDLE ended = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const DWORD start = GetTickCount();
  EXPECT_FALSE(RunWithPatience([ended] { Sleep(400), SetEvent(ended); }, 50));
  EXPECT_LT(GetTickCount() - start, 350u);
  EXPECT_EQ(WaitForSingleObject(ended, 5'000), WAIT_OBJECT_0);
  CloseHandle(ended);
  const DWORD cancelled = GetTickCount();
  EXPECT_FALSE(RunWithPatience([] { Sleep(1'000); }, {5'000, [] { return false; }}));
  EXPECT_LT(GetTickCount() - cancelled, 500u);
  EXPECT_EQ(AskWithPatience([] { return 7; }, 5'000, 0), 7);
  EXPECT_EQ(AskWithPatience([] { return Sleep(200), 7; }, 10, 0), 0);
}

}  // namespace
}  // namespace orvane::win32
#endif
