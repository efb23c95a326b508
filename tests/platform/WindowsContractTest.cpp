#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include <latch>
#include <thread>

#include "win32/NativeHandles.h"
#endif

namespace orvane {
namespace {

constexpr std::uint32_t Answering = 0x401;  // the windows here answer 2 * wParam + 1

/// Windows of one class, which go with the test.
class WindowsContract : public AnyDesktop {
 protected:
#ifdef _WIN32
  WindowsContract() {
    WNDCLASSW type{};
    type.lpszClassName = ClassName;
    type.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
      if (message == Answering) return static_cast<LRESULT>(2 * wParam + 1);
      return DefWindowProcW(window, message, wParam, lParam);
    };
    RegisterClassW(&type);
  }
  ~WindowsContract() override {
    for (HWND window : m_created) DestroyWindow(window);
  }

  WindowHandle Create(const std::wstring& caption, WindowHandle parent = WindowHandle::None) {
    if (!IsReal()) return CreateInMemory(caption, parent);
    const DWORD style = parent == WindowHandle::None ? WS_POPUP : WS_CHILD;
    m_created.push_back(CreateWindowExW(0, ClassName, caption.c_str(), style, 0, 0, 9, 9,
                                        win32::ToNative<HWND>(parent), nullptr, nullptr, nullptr));
    return win32::FromNative<WindowHandle>(m_created.back());
  }
  void Destroy(WindowHandle window) {
    m_memory.windows.Remove(window);
    if (IsReal()) DestroyWindow(win32::ToNative<HWND>(window));
  }

  std::vector<HWND> m_created;
#else
  WindowHandle Create(const std::wstring& caption, WindowHandle parent = WindowHandle::None) {
    return CreateInMemory(caption, parent);
  }
  void Destroy(WindowHandle window) {
    m_memory.windows.Remove(window);
  }
#endif

  WindowHandle CreateInMemory(const std::wstring& caption, WindowHandle parent) {
    return m_memory.windows.Add({.parent = parent,
                                 .className = ClassName,
                                 .caption = caption,
                                 .results = {{Answering, 85}}});
  }

  static constexpr const wchar_t* ClassName = L"OrvaneTestWindow";
  Windows& windows = m_platform.windows;
};

INSTANTIATE_TEST_SUITE_P(, WindowsContract, EveryDesktop(), NameOfDesktop);

TEST_P(WindowsContract, KnowsClassCaptionAndParent) {
  const WindowHandle top = Create(L"Top \u00e4\u05d0");
  const WindowHandle child = Create(std::wstring(100'000, L'x'), top);
  EXPECT_EQ(windows.ClassName(top), ClassName);
  EXPECT_EQ(windows.Caption(top), L"Top \u00e4\u05d0");
  EXPECT_EQ(windows.Caption(child), std::wstring(4095, L'x')) << "cut";
  EXPECT_EQ(windows.Parent(child), top);
  EXPECT_EQ(windows.Parent(top), WindowHandle::None);
}

TEST_P(WindowsContract, NothingComesFromAWindowThatIsGone) {
  const WindowHandle gone = Create(L"gone");
  Destroy(gone);
  for (const WindowHandle window : {gone, WindowHandle::None, WindowHandle{0x7ffffff1}}) {
    EXPECT_EQ(windows.ClassName(window), L"");
    EXPECT_EQ(windows.Caption(window), L"");
    EXPECT_EQ(windows.Parent(window), WindowHandle::None);
    EXPECT_FALSE(windows.Post(window, Answering, 0, 0));
    EXPECT_FALSE(windows.Send(window, Answering, 0, 0, 100).has_value());
  }
}

TEST_P(WindowsContract, FindsATopWindowByClass) {
  EXPECT_EQ(windows.Find(ClassName), WindowHandle::None);
  const WindowHandle top = Create(L"top");
  Create(L"child", top);
  EXPECT_EQ(windows.Find(ClassName), top);
  EXPECT_EQ(windows.Find(L"orvanetestWINDOW"), top);
  EXPECT_EQ(windows.Find(L"OrvaneTest"), WindowHandle::None);
  EXPECT_EQ(windows.Find(L""), WindowHandle::None);
}

TEST_P(WindowsContract, SendsAndPosts) {
  const WindowHandle window = Create(L"window");
  EXPECT_EQ(windows.Send(window, Answering, 42, 0, 1000), 85);
  EXPECT_TRUE(windows.Post(window, Answering, 1, 2));
  windows.RunMessages(1000);
}

#ifdef _WIN32
TEST(Win32Windows, WaitForNoWindowThatHangs) {
  std::latch made{1};
  std::latch end{1};
  HWND native = nullptr;
  const std::jthread hung([&] {
    native = CreateWindowExW(0, L"Static", L"hung", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                             nullptr);
    made.count_down();
    end.wait();
    DestroyWindow(native);
  });
  made.wait();
  const auto window = win32::FromNative<WindowHandle>(native);
  win32::Windows windows;
  const ULONGLONG start = GetTickCount64();
  EXPECT_EQ(windows.Caption(window), L"hung");
  EXPECT_EQ(windows.ClassName(window), L"Static");
  EXPECT_FALSE(windows.Send(window, WM_NULL, 0, 0, 100).has_value());
  EXPECT_TRUE(windows.Post(window, WM_NULL, 0, 0));
  EXPECT_LT(GetTickCount64() - start, 1000u);
  end.count_down();
}

TEST(Win32Windows, RunningMessagesLeavesTheEndOfTheOuterLoopAlone) {
  PostQuitMessage(3);
  win32::Windows().RunMessages(1000);
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 3u);
}
#endif

}  // namespace
}  // namespace orvane
