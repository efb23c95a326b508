// Windows has no objects left. The menu is smaller then, or empty; it comes back whole.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "host/DialogScript.h"
#include "host/LeakCount.h"
#include "host/WholeClick.h"

namespace orvane::host {
namespace {

/// All objects of a kind that the process may have, but for some.
template <class Handle>
class Exhausted {
 public:
  template <class Make, class Remove>
  Exhausted(std::size_t left, Make make, Remove remove) : m_remove(remove) {
    while (const Handle handle = make()) m_handles.push_back(handle);
    for (; left > 0 && !m_handles.empty(); --left) Drop();
  }
  ~Exhausted() {
    while (!m_handles.empty()) Drop();
  }
  Exhausted(const Exhausted&) = delete;
  Exhausted& operator=(const Exhausted&) = delete;

  std::size_t Count() const { return m_handles.size(); }

 private:
  void Drop() {
    m_remove(m_handles.back());
    m_handles.pop_back();
  }

  std::vector<Handle> m_handles;
  std::function<void(Handle)> m_remove;
};

TEST(Failure, OfWindowsObjectsMakesASmallerMenuAndLeaksNothing) {
  DialogScript user{{}, L"orvane.dll"};
  WholeClick click;
  WholeClick::Outcome whole;
  for (int i = 0; i < 50; ++i) whole = click.Run();  // fills the system's own caches
  ASSERT_GT(whole.count, 0);
  const LeakCount before = LeakCount::Now();
  for (const std::size_t left : {0, 1, 2, 3, 5, 8, 20, 100}) {
    {
      const Exhausted<HGDIOBJ> none(
          left, [] { return CreateSolidBrush(1); }, DeleteObject);
      EXPECT_GT(none.Count(), 10'000u);
      EXPECT_LE(click.Run().count, whole.count) << left;
    }
    const Exhausted<HMENU> none(left, CreateMenu, DestroyMenu);
    EXPECT_GT(none.Count(), 10'000u);
    EXPECT_LE(click.Run().count, whole.count) << left;
  }
  EXPECT_EQ(click.Run().count, whole.count);
  EXPECT_EQ(LeakCount::Now().gdiObjects, before.gdiObjects);
  EXPECT_EQ(LeakCount::Now().userHandles, before.userHandles);
}

}  // namespace
}  // namespace orvane::host
