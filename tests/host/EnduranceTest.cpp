#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/Scene.h"

namespace orvane::host {
namespace {

constexpr int Items = 60;

class Endurance : public testing::Test {
 protected:
  Endurance() {
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    WriteFileItems(scene.Path(L"Menu.cfg"), Items);
  }

  void ClickOnce(IDataObject* selection) {
    RightClick click(scene.Folder(), selection);
    if (click.Query() < Items) ++failures;
  }

  Scene scene;
  std::atomic<int> failures = 0;
};

TEST_F(Endurance, TwoHundredRightClicksHoldNothing) {
  const Apartment apartment;
  const ComPtr<IDataObject> selection = Select(scene.Folder(), {L"a.txt"});
  const Library library;
  for (int i = 0; i < 3; ++i) ClickOnce(selection.Get());  // fills the system's own caches
  const LeakCount before = LeakCount::Now();
  for (int i = 0; i < 200; ++i) ClickOnce(selection.Get());
  const LeakCount after = LeakCount::Now();
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.userHandles, before.userHandles);
  EXPECT_EQ(after.heapBlocks, before.heapBlocks);
  EXPECT_EQ(failures, 0);
}

TEST_F(Endurance, TwoThreadsOfTwoThousandHandlersEach) {
  scene.PlainText();
  const Library library;  // keeps the DLL, as another apartment of the host would
  const auto work = [this] {
    const Apartment apartment;
    for (int i = 0; i < 2000; ++i) {
      const RightClick made(L"", nullptr);
      if (made.initialized != S_OK) ++failures;
      if (i % 100 == 0) ClickOnce(nullptr);
    }
  };
  std::thread one(work);
  std::thread two(work);
  one.join();
  two.join();
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(library.Call("DllCanUnloadNow"), S_OK);
}

TEST_F(Endurance, UnloadingAgainAndAgain) {
  const Apartment apartment;
  scene.PlainText();
  for (int i = 0; i < 20; ++i) {
    ClickOnce(nullptr);
    CoFreeUnusedLibrariesEx(0, 0);
    ASSERT_EQ(GetModuleHandleW(L"orvane.dll"), nullptr);
  }
  EXPECT_EQ(failures, 0);
}

}  // namespace
}  // namespace orvane::host
