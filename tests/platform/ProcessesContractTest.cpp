#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/NativeHandles.h"
#include "platform/win32/Processes.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
  Processes& processes = desktop.processes;
  std::uint32_t self = 40;
  std::uint32_t thread = 41;
  std::wstring executable = L"C:\\Program Files\\Host\\host.exe";
  WindowHandle window = desktop.windows.Add({.process = self, .thread = thread});

  OnMemory() {
    desktop.processes.running = {{.id = 4, .executable = L"System", .canBeOpened = false},
                                 {.id = self, .executable = executable, .threads = {thread}}};
  }
};

#ifdef _WIN32
struct OnWindows {
  win32::Processes win32Processes;
  Processes& processes = win32Processes;
  std::uint32_t self = GetCurrentProcessId();
  std::uint32_t thread = GetCurrentThreadId();
  std::wstring executable;
  HWND native = CreateWindowExW(0, L"Static", L"Orvane test", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                                0, 99, 99, nullptr, nullptr, nullptr, nullptr);
  WindowHandle window = win32::FromNative<WindowHandle>(native);

  OnWindows() {
    wchar_t path[MAX_PATH];
    executable.assign(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
  }
  ~OnWindows() { DestroyWindow(native); }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

constexpr std::uint32_t NoProcess = 0x7FFFFFF0;

bool Contains(const std::vector<std::uint32_t>& numbers, std::uint32_t number) {
  return std::ranges::find(numbers, number) != numbers.end();
}

template <class BackEnd>
class ProcessesContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Processes& processes = m_backEnd.processes;
};
TYPED_TEST_SUITE(ProcessesContract, BackEnds, );

TYPED_TEST(ProcessesContract, FindsAProcessAndItsExecutable) {
  const auto& known = this->m_backEnd;
  EXPECT_TRUE(Contains(this->processes.Ids(), known.self));
  EXPECT_EQ(this->processes.Executable(known.self), known.executable);
  EXPECT_EQ(this->processes.Executable(NoProcess), L"");
}

TYPED_TEST(ProcessesContract, WalksSnapshots) {
  const auto& known = this->m_backEnd;
  const auto entries = this->processes.ProcessSnapshot();
  EXPECT_TRUE(std::ranges::any_of(entries, [&](const Processes::Entry& entry) {
    return entry.process == known.self && !entry.file.empty();
  }));
  const auto modules = this->processes.ModuleSnapshot(known.self);
  EXPECT_TRUE(std::ranges::any_of(modules, [&](const Processes::Module& module) {
    return module.path == known.executable && known.executable.ends_with(L"\\" + module.name);
  }));
  EXPECT_TRUE(Contains(this->processes.ThreadSnapshot(known.self), known.thread));
  EXPECT_TRUE(this->processes.ModuleSnapshot(NoProcess).empty());
  EXPECT_TRUE(this->processes.ThreadSnapshot(NoProcess).empty());
}

TYPED_TEST(ProcessesContract, KnowsTheOwnerOfAWindow) {
  const auto owner = this->processes.OwnerOf(this->m_backEnd.window);
  EXPECT_EQ(owner.process, this->m_backEnd.self);
  EXPECT_EQ(owner.thread, this->m_backEnd.thread);
  for (const WindowHandle window : {WindowHandle::None, WindowHandle{0x7ffffff1}}) {
    EXPECT_EQ(this->processes.OwnerOf(window).process, 0u);
    EXPECT_EQ(this->processes.OwnerOf(window).thread, 0u);
  }
}

TYPED_TEST(ProcessesContract, ActivatesWhatHasAWindow) {
  EXPECT_TRUE(this->processes.Activate(this->m_backEnd.self));
  EXPECT_FALSE(this->processes.Activate(NoProcess));
  EXPECT_FALSE(this->processes.PostQuit(NoProcess));
}

#ifdef _WIN32
class Win32Processes : public testing::Test {
 protected:
  ~Win32Processes() override {
    for (const HWND window : m_windows) DestroyWindow(window);
  }

  HWND Open(DWORD style, HWND owner = nullptr) {
    const HWND window =
        CreateWindowExW(style, L"Static", L"Orvane test", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                        99, 99, owner, nullptr, nullptr, nullptr);
    m_windows.insert(m_windows.begin(), window);
    return window;
  }

  HWND ForegroundAfterActivation() {
    EXPECT_TRUE(m_processes.Activate(GetCurrentProcessId()));
    return GetForegroundWindow();
  }

  win32::Processes m_processes;
  std::vector<HWND> m_windows;  // those above others first
};

TEST_F(Win32Processes, LeaveTheWindowThatHasTheFocusInFront) {
  const HWND main = Open(0);
  const HWND dialog = Open(0, main);
  EnableWindow(main, FALSE);
  SetForegroundWindow(dialog);
  EXPECT_EQ(ForegroundAfterActivation(), dialog);
  Open(WS_EX_TOOLWINDOW | WS_EX_TOPMOST);
  SetForegroundWindow(dialog);
  EXPECT_EQ(ForegroundAfterActivation(), dialog);
}
#endif

}  // namespace
}  // namespace orvane
