// The n-th call of the platform fails, for every n: of a whole right-click, and of every command.
// RightClick's end checks the menu's invariants and that nothing is left over.

#include "shellext/WholeClick.h"

namespace orvane::test {
namespace {

TEST(FaultSweep, AMenuIsBuiltAndWalkedWhicheverCallFails) {
  std::size_t calls = 0;
  for (std::size_t n = 0; n <= calls; ++n) {
    SCOPED_TRACE(n);
    WholeClick click;
    click.desktop.faults.FailCall(n);
    click.ClickOnNote();
    click.LookAround();
    if (n == 0) calls = click.desktop.faults.Calls();
    click.desktop.faults.FailCall(0);
  }
  EXPECT_GT(calls, 150u);
}

/// What a command may leave behind: whole, or not at all.
struct Remains {
  explicit Remains(WholeClick& click)
      : list(click.desktop.files.Content(WholeClick::ListFile)),
        note(click.desktop.files.Content(WholeClick::Note)) {}
  std::optional<std::string> list;
  std::optional<std::string> note;
};

TEST(FaultSweep, NoCommandLeavesAnythingHalfDoneWhicheverCallFails) {
  WholeClick first;
  first.ClickOnNote();
  const std::int32_t offsets = first.Offsets();
  std::size_t all = 0;
  for (std::int32_t offset = 0; offset <= offsets; ++offset) {
    std::optional<Remains> whole;
    std::size_t calls = 0;
    for (std::size_t n = 0; n <= calls; ++n) {
      SCOPED_TRACE(testing::Message() << "offset " << offset << ", call " << n);
      WholeClick click;
      click.desktop.answers.Add(L"ok");
      click.ClickOnNote();
      click.desktop.faults.FailCall(n);
      click.Invoke(offset);
      const Remains remains(click);
      if (n == 0) {
        whole = remains;
        calls = click.desktop.faults.Calls();
        all += calls;
      }
      click.desktop.faults.FailCall(0);
      EXPECT_TRUE(!remains.list || remains.list == whole->list);
      EXPECT_EQ(remains.note, whole->note);
      // The lists in the registry can be loaded and hold whole entries.
      click.End();
      click.ClickOnNote();
      EXPECT_TRUE(click.Shows(L"Work"));
    }
  }
  EXPECT_GT(all, 100u);
}

}  // namespace
}  // namespace orvane::test
