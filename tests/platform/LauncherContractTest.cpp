#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include "common/TestBrowser.h"
#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"
#endif

namespace orvane {
namespace {

class LauncherContract : public AnyDesktop {
 protected:
  LauncherContract() {
    for (const wchar_t* file : {L"C:\\missing\\nothing.exe", L"C:\\missing"}) {
      m_memory.launcher.failures[file] = 2;
    }
  }

  Launcher& launcher = m_platform.launcher;
  const std::wstring m_interpreter = m_platform.system.Environment(L"ComSpec");
};

const ItemIdList DesktopItem{{std::byte{0}, std::byte{0}}};

INSTANTIATE_TEST_SUITE_P(, LauncherContract, EveryDesktop(), NameOfDesktop);

TEST_P(LauncherContract, TellsFailuresFromSuccess) {
  const std::int32_t code = launcher.Open({.verb = L"open", .file = L"C:\\missing\\nothing.exe"});
  EXPECT_GE(code, 0);
  EXPECT_LE(code, 32);
  const Execution execution{
      .verb = L"open", .file = m_interpreter, .parameters = L"/c exit", .show = 0};
  EXPECT_GT(launcher.Open(execution), 32);
  EXPECT_TRUE(launcher.OpenEx(execution));
}

TEST_P(LauncherContract, StartsOnlyWhatIsNamedInFull) {
  EXPECT_TRUE(launcher.Start(m_interpreter, L"cmd /c exit", L""));
  EXPECT_FALSE(launcher.Start(L"cmd.exe", L"cmd /c exit", L""));
  EXPECT_FALSE(launcher.Start(L"", L"cmd /c exit", L""));
  EXPECT_FALSE(launcher.Start(L"C:\\missing", L"C:\\missing", L""));
}

TEST_P(LauncherContract, BrowsesOnlyWithABrowserAndAnItem) {
  EXPECT_LT(launcher.BrowseObject(0, DesktopItem), 0);
  EXPECT_LT(launcher.BrowseObject(0x12340, {}), 0);
  EXPECT_EQ(launcher.ShellBrowser(WindowHandle::None), 0);
  launcher.BrowsingDone(WindowHandle::None);
}

#ifdef _WIN32
TEST(Win32Launcher, BrowsesInTheWindowsOwnBrowser) {
  test::TestBrowser browser;
  const HWND window =
      CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&browser));
  const WNDPROC answer = [](HWND self, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
    return message == WM_USER + 7 ? GetWindowLongPtrW(self, GWLP_USERDATA)
                                  : DefWindowProcW(self, message, wParam, lParam);
  };
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(answer));

  win32::Launcher launcher;
  const auto address = launcher.ShellBrowser(win32::FromNative<WindowHandle>(window));
  EXPECT_EQ(address, reinterpret_cast<std::intptr_t>(static_cast<IShellBrowser*>(&browser)));
  EXPECT_EQ(launcher.BrowseObject(address, DesktopItem), S_OK);
  EXPECT_EQ(win32::CopyOf(browser.browsed.get()), DesktopItem);
  EXPECT_EQ(browser.references, 1);
  EXPECT_EQ(launcher.BrowseObject(address, {}), E_POINTER);
  DestroyWindow(window);
}

TEST(Win32Launcher, BelievesNoAddress) {
  win32::Launcher launcher;
  const std::intptr_t data[4] = {100, 0, 0, 0};
  const std::intptr_t table[1] = {reinterpret_cast<std::intptr_t>(data)};
  for (const std::intptr_t address :
       {std::intptr_t{1}, std::intptr_t{0x10000}, std::intptr_t{-8},
        reinterpret_cast<std::intptr_t>(data), reinterpret_cast<std::intptr_t>(data) + 1,
        reinterpret_cast<std::intptr_t>(table)}) {
    EXPECT_EQ(launcher.BrowseObject(address, DesktopItem), E_POINTER) << address;
  }
}
#endif

}  // namespace
}  // namespace orvane
