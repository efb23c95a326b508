#include "customactions/clsProcess.h"

#include <gtest/gtest.h>

#include "memory/Desktop.h"
#include "support/Error.h"

namespace orvane {
namespace {

class ProcessTest : public testing::Test {
 protected:
  ProcessTest() {
    desktop.processes.running = {
        {.id = 4, .executable = L"C:\\Windows\\kernel.exe", .file = L"System"},
        {.id = 8, .executable = L"C:\\Idle.exe", .file = L"[Idle]"},
        {.id = 12, .executable = L"C:\\Editor\\edit.exe", .threads = {121, 122}},
        {.id = 16, .executable = L"C:\\Guarded.exe", .canBeOpened = false},
    };
  }

  WindowHandle WindowOf(std::uint32_t id, WindowHandle parent = WindowHandle::None) {
    return desktop.windows.Add({.parent = parent, .process = id});
  }

  memory::Desktop desktop;
  std::uint32_t& platform = desktop.system.version.platform;  // 1 before NT, 2 since
  clsProcess process{desktop.processes, desktop.system};
};

TEST_F(ProcessTest, FindsAWindowsExecutableOnEitherPlatform) {
  const WindowHandle editor = WindowOf(12);
  for (platform = 1; platform <= 2; ++platform) {
    EXPECT_EQ(process.GetExeViaHwnd(editor), L"C:\\Editor\\edit.exe");
    for (const WindowHandle none : {WindowOf(16), WindowOf(99), WindowHandle{0x7777}})
      EXPECT_EQ(process.GetExeViaHwnd(none), L"");
    std::wstring name = L"as it was", path;
    EXPECT_TRUE(process.GetNamesViaId(12, name, path));
    EXPECT_EQ(name, platform == 1 ? L"edit.exe" : L"") << "only a walk tells the module's name";
  }
  EXPECT_EQ(process.GetExeViaHwnd(editor), L"");
}

TEST_F(ProcessTest, ListsExecutablesAndProcesses) {
  using Names = std::vector<std::wstring>;
  Names exes;
  std::vector<std::uint32_t> ids;
  EXPECT_EQ(process.GetExeList(exes), 3);
  EXPECT_EQ(exes, (Names{L"C:\\Windows\\kernel.exe", L"C:\\Idle.exe", L"C:\\Editor\\edit.exe"}));
  EXPECT_EQ(process.GetProcesses(ids), 4);
  EXPECT_EQ(ids, (std::vector<std::uint32_t>{0, 4, 8, 12, 16})) << "from slot 1 on";

  platform = 1;
  EXPECT_EQ(process.GetExeList(exes), 1);
  EXPECT_EQ(exes, Names{L"C:\\Editor\\edit.exe"}) << "without the system's own entries";
  EXPECT_EQ(process.GetProcesses(ids), 0);
}

TEST_F(ProcessTest, ClosesAndActivates) {
  EXPECT_TRUE(process.CloseProcess(12));
  EXPECT_EQ(desktop.effects.All().size(), 2u);
  EXPECT_FALSE(process.CloseProcess(99));

  const WindowHandle frame = WindowOf(12);
  ActivateWindowProcess(desktop.processes, WindowOf(12, frame));
  EXPECT_EQ(desktop.windows.Active(), frame);
  for (const WindowHandle none : {WindowOf(99, frame), WindowHandle::None})
    EXPECT_THROW(ActivateWindowProcess(desktop.processes, none), Error);
}

}  // namespace
}  // namespace orvane
