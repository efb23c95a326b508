#include <algorithm>

#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include "win32/NativeHandles.h"
#endif

namespace orvane {
namespace {

/// Known is one process with one thread and one window: on Windows the test's own.
class ProcessesContract : public AnyDesktop {
 protected:
  ProcessesContract() {
    m_memory.processes.running = {
        {.id = 4, .executable = L"System", .canBeOpened = false},
        {.id = m_process, .executable = m_executable, .threads = {m_thread}}};
    m_window = m_memory.windows.Add({.process = m_process, .thread = m_thread});
#ifdef _WIN32
    if (!IsReal()) return;
    m_process = GetCurrentProcessId();
    m_thread = GetCurrentThreadId();
    wchar_t path[MAX_PATH];
    m_executable.assign(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    m_window = win32::FromNative<WindowHandle>(Open(0));
#endif
  }

#ifdef _WIN32
  ~ProcessesContract() override {
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
    EXPECT_TRUE(processes.Activate(m_process));
    return GetForegroundWindow();
  }

  std::vector<HWND> m_windows;  // those above others first
#endif

  std::uint32_t m_process = 40;
  std::uint32_t m_thread = 41;
  std::wstring m_executable = L"C:\\Program Files\\Host\\host.exe";
  WindowHandle m_window = WindowHandle::None;
  Processes& processes = m_platform.processes;
  static constexpr std::uint32_t NoProcess = 0x7FFFFFF0;
};

INSTANTIATE_TEST_SUITE_P(, ProcessesContract, EveryDesktop(), NameOfDesktop);

TEST_P(ProcessesContract, FindsAProcessAndItsExecutable) {
  const auto ids = processes.Ids();
  EXPECT_NE(std::ranges::find(ids, m_process), ids.end());
  EXPECT_EQ(processes.Executable(m_process), m_executable);
  EXPECT_EQ(processes.Executable(NoProcess), L"");
}

TEST_P(ProcessesContract, WalksSnapshots) {
  EXPECT_TRUE(std::ranges::any_of(processes.ProcessSnapshot(), [this](const auto& entry) {
    return entry.process == m_process && !entry.file.empty();
  }));
  EXPECT_TRUE(std::ranges::any_of(processes.ModuleSnapshot(m_process), [this](const auto& module) {
    return module.path == m_executable && m_executable.ends_with(L"\\" + module.name);
  }));
  const auto threads = processes.ThreadSnapshot(m_process);
  EXPECT_NE(std::ranges::find(threads, m_thread), threads.end());
  EXPECT_TRUE(processes.ModuleSnapshot(NoProcess).empty());
  EXPECT_TRUE(processes.ThreadSnapshot(NoProcess).empty());
}

TEST_P(ProcessesContract, KnowsTheOwnerOfAWindow) {
  const auto owner = processes.OwnerOf(m_window);
  EXPECT_EQ(owner.process, m_process);
  EXPECT_EQ(owner.thread, m_thread);
  for (const WindowHandle window : {WindowHandle::None, WindowHandle{0x7ffffff1}}) {
    EXPECT_EQ(processes.OwnerOf(window).process, 0u);
    EXPECT_EQ(processes.OwnerOf(window).thread, 0u);
  }
}

TEST_P(ProcessesContract, ActivatesWhatHasAWindow) {
  EXPECT_TRUE(processes.Activate(m_process));
  EXPECT_FALSE(processes.Activate(NoProcess));
  EXPECT_FALSE(processes.PostQuit(NoProcess));
}

#ifdef _WIN32
class Win32Processes : public ProcessesContract {};
INSTANTIATE_TEST_SUITE_P(, Win32Processes, testing::Values("win32"), NameOfDesktop);

TEST_P(Win32Processes, LeaveTheWindowThatHasTheFocusInFront) {
  const HWND main = m_windows.front();
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
