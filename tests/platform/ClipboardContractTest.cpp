#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include <latch>
#include <thread>
#endif

namespace orvane {
namespace {

class ClipboardContract : public AnyDesktop {
 protected:
  std::optional<std::wstring> Text() {
#ifdef _WIN32
    if (IsReal()) return RealText();
#endif
    return m_memory.clipboard.text;
  }

  Clipboard& clipboard = m_platform.clipboard;

#ifdef _WIN32
 private:
  std::optional<std::wstring> RealText() {
    if (!OpenClipboard(nullptr)) return L"cannot be opened";
    std::optional<std::wstring> text;
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
      text = static_cast<const wchar_t*>(GlobalLock(data));
      GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
  }
#endif
};

INSTANTIATE_TEST_SUITE_P(, ClipboardContract, EveryDesktop(), NameOfDesktop);

TEST_P(ClipboardContract, HoldsTheLastTextUntilItIsCleared) {
  using namespace std::literals;
  for (const std::wstring& text :
       {L"C:\\a\r\nC:\\\u00e4\u05d0\r\n"s, L""s, std::wstring(5'000'000, L'x')}) {
    EXPECT_TRUE(clipboard.SetText(text));
    EXPECT_TRUE(Text() == text) << text.size();
  }
  EXPECT_TRUE(clipboard.SetText(L"ab\0cd"s));
  EXPECT_EQ(Text(), L"ab");
  EXPECT_TRUE(clipboard.Clear());
  EXPECT_EQ(Text(), std::nullopt);
}

#ifdef _WIN32
/// Another thread that holds the clipboard open for a while.
class Holder {
 public:
  explicit Holder(DWORD milliseconds) : m_thread([this, milliseconds] { Hold(milliseconds); }) {
    m_ready.wait();
  }

 private:
  void Hold(DWORD milliseconds) {
    const HWND owner = CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                       nullptr, nullptr);
    OpenClipboard(owner);
    m_ready.count_down();
    Sleep(milliseconds);
    CloseClipboard();
    DestroyWindow(owner);
  }

  std::latch m_ready{1};
  std::jthread m_thread;
};

TEST(Win32Clipboard, WaitsABoundedTimeForTheOneWhoHoldsIt) {
  win32::Clipboard clipboard;
  {
    const Holder holder(200);
    EXPECT_TRUE(clipboard.SetText(L"after a while"));
  }
  const Holder holder(3000);
  const ULONGLONG start = GetTickCount64();
  EXPECT_FALSE(clipboard.SetText(L"never"));
  EXPECT_LT(GetTickCount64() - start, 2500u);
}
#endif

}  // namespace
}  // namespace orvane
