#include "customactions/clsProcess.h"

#include <gtest/gtest.h>

#include "platform/memory/Processes.h"
#include "platform/memory/SystemInfo.h"
#include "support/Error.h"

namespace orvane {
namespace {

using Names = std::vector<std::wstring>;

class ProcessTest : public testing::Test {
 protected:
  ProcessTest() {
    processes.running = {
        {.id = 4, .executable = L"C:\\Windows\\kernel.exe", .canBeOpened = true, .file = L"System"},
        {.id = 8, .executable = L"C:\\Idle.exe", .canBeOpened = true, .file = L"[Idle]"},
        {.id = 12, .executable = L"C:\\Editor\\edit.exe", .threads = {121, 122}},
        {.id = 16, .executable = L"C:\\Guarded.exe", .canBeOpened = false},
    };
  }

  WindowHandle WindowOf(std::uint32_t process, WindowHandle parent = WindowHandle::None) {
    memory::Windows::Window window;
    window.parent = parent;
    window.className = L"Frame";
    window.process = process;
    return windows.Add(window);
  }

  memory::Effects effects;
  memory::Faults faults;
  memory::Windows windows{effects, faults};
  memory::Processes processes{windows, effects, faults};
  memory::SystemInfo system;
  clsProcess process{processes, system};
};

TEST_F(ProcessTest, FindsAWindowsExecutableOnEitherPlatform) {
  const WindowHandle editor = WindowOf(12), guarded = WindowOf(16), unknown = WindowOf(99);
  for (const std::uint32_t platform : {1u, 2u}) {
    system.version.platform = platform;
    EXPECT_EQ(process.GetExeViaHwnd(editor), L"C:\\Editor\\edit.exe");
    EXPECT_EQ(process.GetExeViaHwnd(guarded), L"");
    EXPECT_EQ(process.GetExeViaHwnd(unknown), L"");
    EXPECT_EQ(process.GetExeViaHwnd(ToHandle<WindowHandle>(0x7777)), L"");
  }
  system.version.platform = 3;
  EXPECT_EQ(process.GetExeViaHwnd(editor), L"");
}

TEST_F(ProcessTest, NamesTheModuleOnlyFromAToolHelpWalk) {
  std::wstring name = L"as it was", path = L"as it was";
  EXPECT_FALSE(process.GetNamesViaId(16, name, path));
  EXPECT_EQ(path, L"as it was");

  EXPECT_TRUE(process.GetNamesViaId(12, name, path));
  EXPECT_EQ(name + L"|" + path, L"|C:\\Editor\\edit.exe");

  system.version.platform = 1;
  EXPECT_TRUE(process.GetNamesViaId(12, name, path));
  EXPECT_EQ(name + L"|" + path, L"edit.exe|C:\\Editor\\edit.exe");
}

TEST_F(ProcessTest, ListsExecutables) {
  Names exes;
  EXPECT_EQ(process.GetExeList(exes), 3);
  EXPECT_EQ(exes, (Names{L"C:\\Windows\\kernel.exe", L"C:\\Idle.exe", L"C:\\Editor\\edit.exe"}));

  system.version.platform = 1;  // without the system's own entries
  EXPECT_EQ(process.GetExeList(exes), 1);
  EXPECT_EQ(exes, Names{L"C:\\Editor\\edit.exe"});

  system.version.platform = 0;
  EXPECT_EQ(process.GetExeList(exes), 0);
  EXPECT_TRUE(exes.empty());
}

TEST_F(ProcessTest, CountsProcessesFromSlotOne) {
  std::vector<std::uint32_t> ids;
  EXPECT_EQ(process.GetProcesses(ids), 4);
  EXPECT_EQ(ids, (std::vector<std::uint32_t>{0, 4, 8, 12, 16}));
  system.version.platform = 1;
  EXPECT_EQ(process.GetProcesses(ids), 0);
}

TEST_F(ProcessTest, AsksEveryThreadToQuit) {
  EXPECT_TRUE(process.CloseProcess(12));
  EXPECT_EQ(effects.All().size(), 2u);
  EXPECT_FALSE(process.CloseProcess(99));
}

TEST_F(ProcessTest, ActivatesTheApplicationOfAWindow) {
  const WindowHandle frame = WindowOf(12);
  const WindowHandle list = WindowOf(12, frame);
  ActivateWindowProcess(processes, list);
  EXPECT_EQ(windows.Active(), frame);

  const WindowHandle orphan = WindowOf(99, frame);
  EXPECT_THROW(ActivateWindowProcess(processes, orphan), Error);
  EXPECT_THROW(ActivateWindowProcess(processes, WindowHandle::None), Error);
}

TEST_F(ProcessTest, ReadsClassAndCaption) {
  std::wstring className = L"old", caption = L"old";
  GetWindowClassAndCaption(windows, WindowOf(12), className, caption);
  EXPECT_EQ(className + L"|" + caption, L"Frame|");
  GetWindowClassAndCaption(windows, ToHandle<WindowHandle>(0x7777), className, caption);
  EXPECT_EQ(className + L"|" + caption, L"|");
}

}  // namespace
}  // namespace orvane
