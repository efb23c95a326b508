// What takes minutes: whole right-clicks by the thousand.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/Scene.h"
#include "host/WholeClick.h"

namespace orvane::host {
namespace {

TEST(LongLife, AThousandWholeRightClicksHoldNothing) {
  WholeClick click;
  const auto clickOften = [&](int times) {
    for (int i = 0; i < times; ++i) {
      const WholeClick::Outcome outcome = click.Run();
      EXPECT_TRUE(outcome.count > 0 && outcome.unmeasured == 0 && outcome.chosen &&
                  outcome.isRestored)
          << i;
    }
    return LeakCount::Now();
  };
  const LeakCount before = clickOften(50);  // fills the system's own caches
  EXPECT_EQ(clickOften(1000), before);
}

TEST(LongThreads, TwoApartmentsOfTwoThousandHandlersEach) {
  Scene scene;
  scene.PlainText();
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  WriteFileItems(scene.Path(L"Menu.cfg"), 60);
  const Library library;
  std::atomic<int> failures = 0;
  const auto work = [&] {
    const Apartment apartment;
    for (int i = 0; i < 2000; ++i) {
      RightClick click(L"", nullptr);
      if (click.initialized != S_OK || (i % 10 == 0 && click.Query() < 60)) ++failures;
      // Some are let go of by a third thread while their own goes on.
      if (i % 100 == 0) std::thread([&] { click.handler.Reset(); }).join();
    }
  };
  std::thread one(work);
  std::thread two(work);
  one.join();
  two.join();
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(library.Call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace orvane::host
