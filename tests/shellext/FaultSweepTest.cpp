// The n-th call of the platform fails, for every n: of a whole right-click, and of every command;
// or all do from there, as when the process is ended. RightClick's end checks the menu's invariants
// and that nothing is left over.

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

TEST(FaultSweep, NoCommandLeavesAnythingHalfDoneWhicheverCallFailsAndWhereverItAllEnds) {
  WholeClick first;
  first.ClickOnNote();
  const std::int32_t offsets = first.Offsets();
  std::size_t all = 0;
  for (std::int32_t run = 0; run <= 2 * offsets + 1; ++run) {
    const bool ends = run % 2 != 0;
    std::optional<Remains> whole;
    std::size_t calls = 0;
    for (std::size_t n = 0; n <= calls; ++n) {
      SCOPED_TRACE(testing::Message() << "offset " << run / 2 << ", call " << n << ends);
      WholeClick click;
      click.desktop.answers.Add(L"ok");
      if (ends) click.desktop.files.AddFile(WholeClick::ListFile, "old");
      const Remains before(click);
      click.ClickOnNote();
      if (ends)
        click.desktop.faults.FailFrom(n);
      else
        click.desktop.faults.FailCall(n);
      click.Invoke(run / 2);
      const Remains remains(click);
      if (n == 0) {
        whole = remains;
        calls = click.desktop.faults.Calls();
        all += calls;
      }
      click.desktop.faults.FailCall(0);
      EXPECT_TRUE(remains.list == before.list || remains.list == whole->list);
      EXPECT_EQ(remains.note, whole->note);
      // The lists in the registry can be loaded and hold whole entries.
      click.End();
      click.ClickOnNote();
      EXPECT_TRUE(click.Shows(L"Work"));
    }
  }
  EXPECT_GT(all, 200u);
}

}  // namespace
}  // namespace orvane::test
