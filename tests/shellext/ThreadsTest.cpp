// Explorer right-clicks on several threads, each with a desktop and globals of its own. The thread
// sanitizer tells what they share all the same.

#include <thread>
#include <vector>

#include "shellext/WholeClick.h"

namespace orvane::test {
namespace {

TEST(Threads, EightRightClickAtOnce) {
  std::vector<std::thread> threads;
  for (std::int32_t thread = 0; thread < 8; ++thread) {
    threads.emplace_back([thread] {
      for (std::int32_t i = 0; i < 12; ++i) {
        WholeClick click;
        click.Set(L"DebugEnable", i % 2);
        click.desktop.answers.Add(L"ok");
        click.ClickOnNote();
        click.LookAround();
        click.Invoke((thread + i) % click.Offsets());
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace orvane::test
