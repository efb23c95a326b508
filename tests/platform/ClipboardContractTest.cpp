#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/Clipboard.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
  memory::Clipboard& clipboard = desktop.clipboard;

  std::optional<std::wstring> Text() { return clipboard.text; }
};

#ifdef _WIN32
struct OnWindows {
  win32::Clipboard clipboard;

  std::optional<std::wstring> Text() {
    if (!OpenClipboard(nullptr)) return L"cannot be opened";
    std::optional<std::wstring> text;
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
      text = static_cast<const wchar_t*>(GlobalLock(data));
      GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
  }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class ClipboardContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Clipboard& clipboard = m_backEnd.clipboard;
};
TYPED_TEST_SUITE(ClipboardContract, BackEnds, );

TYPED_TEST(ClipboardContract, HoldsTheLastText) {
  using namespace std::literals;
  for (const std::wstring& text :
       {L"C:\\a\r\nC:\\\u00e4\u05d0\r\n"s, L""s, std::wstring(5'000'000, L'x')}) {
    EXPECT_TRUE(this->clipboard.SetText(text));
    EXPECT_TRUE(this->m_backEnd.Text() == text) << text.size();
  }
  EXPECT_TRUE(this->clipboard.SetText(L"ab\0cd"s));
  EXPECT_EQ(this->m_backEnd.Text(), L"ab");
}

TYPED_TEST(ClipboardContract, IsEmptyAfterClearing) {
  EXPECT_TRUE(this->clipboard.SetText(L"text"));
  EXPECT_TRUE(this->clipboard.Clear());
  EXPECT_FALSE(this->m_backEnd.Text().has_value());
}

TEST(MemoryClipboard, RecordsTextsAndCanBeHeldOpen) {
  memory::Desktop desktop;
  desktop.clipboard.SetText(L"a");
  desktop.clipboard.heldOpen = true;
  EXPECT_FALSE(desktop.clipboard.SetText(L"b"));
  EXPECT_FALSE(desktop.clipboard.Clear());
  EXPECT_EQ(desktop.clipboard.text, L"a");
  EXPECT_EQ(desktop.effects.All().size(), 1u);
}

#ifdef _WIN32
/// Holds the clipboard open from another thread for a while.
struct Holder {
  DWORD milliseconds;
  HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE thread = nullptr;

  explicit Holder(DWORD howLong) : milliseconds(howLong) {
    thread = CreateThread(
        nullptr, 0,
        [](void* parameter) -> DWORD {
          auto& self = *static_cast<Holder*>(parameter);
          const HWND owner = CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE,
                                             nullptr, nullptr, nullptr);
          OpenClipboard(owner);
          SetEvent(self.ready);
          Sleep(self.milliseconds);
          CloseClipboard();
          DestroyWindow(owner);
          return 0;
        },
        this, 0, nullptr);
    WaitForSingleObject(ready, INFINITE);
  }
  ~Holder() {
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    CloseHandle(ready);
  }
};

TEST(Win32Clipboard, WaitsABoundedTimeForTheOneWhoHoldsIt) {
  win32::Clipboard clipboard;
  {
    Holder holder(200);
    EXPECT_TRUE(clipboard.SetText(L"after a while"));
  }
  Holder holder(3000);
  const ULONGLONG start = GetTickCount64();
  EXPECT_FALSE(clipboard.SetText(L"never"));
  EXPECT_LT(GetTickCount64() - start, 2500u);
}
#endif

}  // namespace
}  // namespace orvane
