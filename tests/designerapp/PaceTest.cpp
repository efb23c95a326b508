#include <gtest/gtest.h>

#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <vector>

#include "designerapp/Designer.h"

// How quick the designer is. The figures stand in docs/performance.md.

namespace orvane::test {
namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Prints the times and answers the fastest tenth's limit: what else the machine does makes a time
/// longer and never shorter.
double Report(const char* what, std::vector<double> times) {
  std::ranges::sort(times);
  const double quick = times[times.size() / 10];
  std::printf("%s: %.1f ms on a quiet machine, median %.1f ms of %zu\n", what, quick,
              times[times.size() / 2], times.size());
  return quick;
}

/// A program's start until it shows a window and waits for the user.
double Start(const std::wstring& program, const std::wstring& argument) {
  std::wstring command = L'"' + program + L"\" \"" + argument + L'"';
  STARTUPINFOW how{};
  how.cb = sizeof how;
  PROCESS_INFORMATION made{};
  const double time = Milliseconds([&] {
    ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &how, &made));
    EXPECT_EQ(WaitForInputIdle(made.hProcess, 60000), 0U);
  });
  const auto close = [](HWND window, LPARAM) -> BOOL {
    return PostMessageW(window, WM_CLOSE, 0, 0);
  };
  for (int i = 0; i < 300 && WaitForSingleObject(made.hProcess, 100) == WAIT_TIMEOUT; ++i)
    EnumThreadWindows(made.dwThreadId, close, 0);
  CloseHandle(made.hThread);
  CloseHandle(made.hProcess);
  return time;
}

TEST(LongPace, StartsInAtMostTwiceTheTimeOfAnEmptyWindow) {
  Designer designer;
  designer.Fill();
  wchar_t self[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  const std::filesystem::path folder = std::filesystem::path(self).parent_path();
  std::vector<double> ours, empty;
  for (int i = 0; i < 15; ++i) {
    empty.push_back(Start(folder / L"empty_window.exe", {}));
    ours.push_back(Start(folder / L"designer.exe", designer.file));
  }
  const double bare = Report("start of an empty window", empty);
  EXPECT_LE(Report("start of the designer", ours), 2 * bare);
}

TEST(LongPace, IsQuickWithFiveThousandItems) {
  Designer designer;
  std::vector<clsOrvaneData> items(5000);
  for (std::size_t i = 0; i < items.size(); ++i) {
    items[i].m_lType = clsOrvaneData::TypeFile;
    items[i].Location(L"C:\\Some folder\\File " + std::to_wstring(i) + L".txt");
    items[i].Caption(L"Item " + std::to_wstring(i));
  }
  Insert(designer.program.document.Edits(), std::move(items), {&designer.Root(), 0});
  designer.program.document.Save(designer.file);
  Report("5,000 items opened", {Milliseconds([&] { designer.Open(1); })});

  std::vector<double> pages, keys;
  for (int i = 0; i < 100; ++i)
    pages.push_back(Milliseconds([&] {
      SendMessageW(designer.Tree(), WM_VSCROLL, SB_PAGEDOWN, 0);
      UpdateWindow(designer.Tree());
    }));
  EXPECT_LE(Report("a page scrolled", pages), 100);

  User().Type(L"{DOWN}{F6}");
  const HWND caption = GetFocus();
  for (int i = 0; i < 100; ++i) {
    keys.push_back(Milliseconds([&] {
      SendMessageW(caption, WM_CHAR, L'a' + i % 26, 0);
      for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
        DispatchMessageW(&message);
    }));
  }
  EXPECT_EQ(designer.Root().children[0]->data.Caption().size(), 100U);
  EXPECT_LE(Report("a key typed into a caption", keys), 16);
  const auto check = [&] { SendMessageW(designer.window->Handle(), WM_TIMER, 1, 0); };
  Report("the check after a pause in typing", {Milliseconds(check)});
}

}  // namespace
}  // namespace orvane::test
