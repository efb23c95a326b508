#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include "platform/win32/Launcher.h"
#include "platform/win32/NativeHandles.h"
#include "platform/win32/NativeItemIdList.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
  Launcher& launcher = desktop.launcher;
  std::wstring interpreter = desktop.system.Environment(L"comspec");

  OnMemory() {
    desktop.launcher.failures[L"C:\\missing\\nothing.exe"] = 2;
    desktop.launcher.failures[L"C:\\missing"] = 2;
  }
};

#ifdef _WIN32
struct OnWindows {
  win32::Launcher win32Launcher;
  Launcher& launcher = win32Launcher;
  std::wstring interpreter = L"C:\\windows\\system32\\cmd.exe";

  OnWindows() { EXPECT_TRUE(SUCCEEDED(CoInitialize(nullptr))); }
  ~OnWindows() { CoUninitialize(); }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class LauncherContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Launcher& launcher = m_backEnd.launcher;
};
TYPED_TEST_SUITE(LauncherContract, BackEnds, );

TYPED_TEST(LauncherContract, TellsFailuresFromSuccess) {
  Execution execution;
  execution.verb = L"open";
  execution.file = L"C:\\missing\\nothing.exe";
  const std::int32_t code = this->launcher.Open(execution);
  EXPECT_GE(code, 0);
  EXPECT_LE(code, 32);

  execution.file = this->m_backEnd.interpreter;
  execution.parameters = L"/c exit";
  execution.show = 0;
  EXPECT_GT(this->launcher.Open(execution), 32);
  EXPECT_TRUE(this->launcher.OpenEx(execution));
}

TYPED_TEST(LauncherContract, StartsOnlyWhatIsNamedInFull) {
  const std::wstring& interpreter = this->m_backEnd.interpreter;
  EXPECT_TRUE(this->launcher.Start(interpreter, L"cmd /c exit", L""));
  EXPECT_FALSE(this->launcher.Start(L"cmd.exe", L"cmd /c exit", L""));
  EXPECT_FALSE(this->launcher.Start(L"", L"cmd /c exit", L""));
  EXPECT_FALSE(this->launcher.Start(L"C:\\missing", L"C:\\missing", L""));
}

TYPED_TEST(LauncherContract, BrowsesOnlyWithABrowserAndAnItem) {
  const ItemIdList desktop{{std::byte{0}, std::byte{0}}};
  EXPECT_LT(this->launcher.BrowseObject(0, desktop), 0);
  EXPECT_LT(this->launcher.BrowseObject(0x12340, {}), 0);
  EXPECT_EQ(this->launcher.ShellBrowser(WindowHandle::None), 0);
  this->launcher.BrowsingDone(WindowHandle::None);
}

#ifdef _WIN32
class TestBrowser : public IShellBrowser {
 public:
  ItemIdList browsed;
  int references = 1;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id != IID_IShellBrowser && id != IID_IUnknown) return E_NOINTERFACE;
    AddRef();
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
  HRESULT STDMETHODCALLTYPE GetWindow(HWND*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InsertMenusSB(HMENU, LPOLEMENUGROUPWIDTHS) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetMenuSB(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RemoveMenusSB(HMENU) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetStatusTextSB(LPCOLESTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnableModelessSB(BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE TranslateAcceleratorSB(LPMSG, WORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE BrowseObject(PCUIDLIST_RELATIVE item, UINT) override {
    browsed = win32::CopyOf(static_cast<PCIDLIST_ABSOLUTE>(item));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetViewStateStream(DWORD, IStream**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetControlWindow(UINT, HWND*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SendControlMsg(UINT, UINT, WPARAM, LPARAM, LRESULT*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE QueryActiveShellView(IShellView**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnViewWindowActive(IShellView*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetToolbarItems(LPTBBUTTONSB, UINT, UINT) override { return E_NOTIMPL; }
};

TEST(Win32Launcher, BrowsesInTheWindowsOwnBrowser) {
  TestBrowser browser;
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
  const ItemIdList desktop{{std::byte{0}, std::byte{0}}};
  EXPECT_EQ(launcher.BrowseObject(address, desktop), S_OK);
  EXPECT_EQ(browser.browsed, desktop);
  EXPECT_EQ(browser.references, 1);
  EXPECT_EQ(launcher.BrowseObject(address, {}), E_POINTER);
  DestroyWindow(window);
}

TEST(Win32Launcher, BelievesNoAddress) {
  win32::Launcher launcher;
  const ItemIdList desktop{{std::byte{0}, std::byte{0}}};
  const std::intptr_t data[4] = {100, 0, 0, 0};
  const std::intptr_t table[1] = {reinterpret_cast<std::intptr_t>(data)};
  for (const std::intptr_t address :
       {std::intptr_t{1}, std::intptr_t{100}, std::intptr_t{0x10000}, std::intptr_t{-8},
        reinterpret_cast<std::intptr_t>(data), reinterpret_cast<std::intptr_t>(data) + 1,
        reinterpret_cast<std::intptr_t>(table)}) {
    EXPECT_EQ(launcher.BrowseObject(address, desktop), E_POINTER) << address;
  }
}
#endif

}  // namespace
}  // namespace orvane
