#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/NativeHandles.h"
#include "platform/win32/Windows.h"
#endif

namespace orvane {
namespace {

constexpr std::uint32_t Answering = 0x401;  // WM_USER + 1: the test windows answer 2 * wParam + 1

struct OnMemory {
  memory::Desktop desktop;
  memory::Windows& windows = desktop.windows;

  WindowHandle Create(const std::wstring& caption, WindowHandle parent = WindowHandle::None) {
    return windows.Add({.parent = parent,
                        .className = L"OrvaneTestWindow",
                        .caption = caption,
                        .results = {{Answering, 85}}});
  }
  void Destroy(WindowHandle window) { windows.Remove(window); }
  static std::wstring ClassName() { return L"OrvaneTestWindow"; }
};

#ifdef _WIN32
struct OnWindows {
  win32::Windows windows;
  std::vector<HWND> created;

  OnWindows() {
    WNDCLASSW type{};
    type.lpszClassName = L"OrvaneTestWindow";
    type.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
      if (message == Answering) return static_cast<LRESULT>(2 * wParam + 1);
      return DefWindowProcW(window, message, wParam, lParam);
    };
    RegisterClassW(&type);
  }
  ~OnWindows() {
    for (HWND window : created) DestroyWindow(window);
  }

  WindowHandle Create(const std::wstring& caption, WindowHandle parent = WindowHandle::None) {
    const DWORD style = parent == WindowHandle::None ? WS_POPUP : WS_CHILD;
    created.push_back(CreateWindowExW(0, L"OrvaneTestWindow", caption.c_str(), style, 0, 0, 9, 9,
                                      win32::ToNative<HWND>(parent), nullptr, nullptr, nullptr));
    return win32::FromNative<WindowHandle>(created.back());
  }
  void Destroy(WindowHandle window) { DestroyWindow(win32::ToNative<HWND>(window)); }
  static std::wstring ClassName() { return L"OrvaneTestWindow"; }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class WindowsContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Windows& windows = m_backEnd.windows;
};
TYPED_TEST_SUITE(WindowsContract, BackEnds, );

TYPED_TEST(WindowsContract, KnowsClassCaptionAndParent) {
  const WindowHandle top = this->m_backEnd.Create(L"Top \u00e4\u05d0");
  const WindowHandle child = this->m_backEnd.Create(L"", top);
  ASSERT_NE(top, WindowHandle::None);
  ASSERT_NE(child, WindowHandle::None);
  EXPECT_EQ(this->windows.ClassName(top), L"OrvaneTestWindow");
  EXPECT_EQ(this->windows.Caption(top), L"Top \u00e4\u05d0");
  EXPECT_EQ(this->windows.Caption(child), L"");
  EXPECT_EQ(this->windows.Parent(child), top);
  EXPECT_EQ(this->windows.Parent(top), WindowHandle::None);
}

TYPED_TEST(WindowsContract, CutsALongCaption) {
  const WindowHandle window = this->m_backEnd.Create(std::wstring(100'000, L'x'));
  EXPECT_EQ(this->windows.Caption(window), std::wstring(4095, L'x'));
}

TYPED_TEST(WindowsContract, NothingComesFromAWindowThatIsGone) {
  const WindowHandle gone = this->m_backEnd.Create(L"gone");
  this->m_backEnd.Destroy(gone);
  for (const WindowHandle window : {gone, WindowHandle::None, WindowHandle{0x7ffffff1}}) {
    EXPECT_EQ(this->windows.ClassName(window), L"");
    EXPECT_EQ(this->windows.Caption(window), L"");
    EXPECT_EQ(this->windows.Parent(window), WindowHandle::None);
    EXPECT_FALSE(this->windows.Post(window, Answering, 0, 0));
    EXPECT_FALSE(this->windows.Send(window, Answering, 0, 0, 100).has_value());
  }
}

TYPED_TEST(WindowsContract, FindsATopWindowByClass) {
  EXPECT_EQ(this->windows.Find(L"OrvaneTestWindow"), WindowHandle::None);
  const WindowHandle top = this->m_backEnd.Create(L"top");
  this->m_backEnd.Create(L"child", top);
  EXPECT_EQ(this->windows.Find(L"OrvaneTestWindow"), top);
  EXPECT_EQ(this->windows.Find(L"orvanetestWINDOW"), top);
  EXPECT_EQ(this->windows.Find(L"OrvaneTest"), WindowHandle::None);
  EXPECT_EQ(this->windows.Find(L""), WindowHandle::None);
}

TYPED_TEST(WindowsContract, SendsAndPosts) {
  const WindowHandle window = this->m_backEnd.Create(L"window");
  EXPECT_EQ(this->windows.Send(window, Answering, 42, 0, 1000), 85);
  EXPECT_TRUE(this->windows.Post(window, Answering, 1, 2));
  this->windows.RunMessages(1000);
}

TEST(MemoryWindows, VanishHangAndRecord) {
  memory::Desktop desktop;
  const WindowHandle vanishing =
      desktop.windows.Add({.className = L"Vanishing", .caption = L"x", .questionsLeft = 1});
  EXPECT_EQ(desktop.windows.ClassName(vanishing), L"Vanishing");
  EXPECT_EQ(desktop.windows.Caption(vanishing), L"");

  const WindowHandle hung = desktop.windows.Add({.answers = false});
  EXPECT_FALSE(desktop.windows.Send(hung, 7, 1, 2, 100).has_value());
  ASSERT_EQ(desktop.effects.All().size(), 1u);
  EXPECT_EQ(desktop.effects.All()[0].call, "SendMessage");
}

#ifdef _WIN32
/// A thread with a window, a stuck one after `Stick`.
class HungWindow {
 public:
  HungWindow() {
    m_ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_release = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_thread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
    WaitForSingleObject(m_ready, INFINITE);
  }
  ~HungWindow() {
    SetEvent(m_release);
    WaitForSingleObject(m_thread, INFINITE);
    for (HANDLE handle : {m_thread, m_ready, m_release}) CloseHandle(handle);
  }
  WindowHandle Window() const { return win32::FromNative<WindowHandle>(m_window); }

 private:
  static DWORD WINAPI Run(void* parameter) {
    auto& self = *static_cast<HungWindow*>(parameter);
    self.m_window = CreateWindowExW(0, L"Static", L"hung", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                                    nullptr, nullptr);
    SetEvent(self.m_ready);
    WaitForSingleObject(self.m_release, INFINITE);
    DestroyWindow(self.m_window);
    return 0;
  }

  HANDLE m_ready;
  HANDLE m_release;
  HANDLE m_thread;
  HWND m_window = nullptr;
};

TEST(Win32Windows, WaitForNoWindowThatHangs) {
  HungWindow hung;
  win32::Windows windows;
  const ULONGLONG start = GetTickCount64();
  EXPECT_EQ(windows.Caption(hung.Window()), L"hung");
  EXPECT_EQ(windows.ClassName(hung.Window()), L"Static");
  EXPECT_FALSE(windows.Send(hung.Window(), WM_NULL, 0, 0, 100).has_value());
  EXPECT_TRUE(windows.Post(hung.Window(), WM_NULL, 0, 0));
  EXPECT_LT(GetTickCount64() - start, 1000u);
}

TEST(Win32Windows, RunningMessagesLeavesTheEndOfTheOuterLoopAlone) {
  win32::Windows windows;
  PostQuitMessage(3);
  windows.RunMessages(1000);
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 3u);
}
#endif

}  // namespace
}  // namespace orvane
