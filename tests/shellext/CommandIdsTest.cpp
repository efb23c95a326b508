#include "shellext/CommandIds.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(CommandIds, HandsOutTheRangeAndStopsAtItsEnd) {
  for (const std::int32_t first : {100, INT32_MAX - 1}) {
    CommandIds ids(first, first + 1);
    EXPECT_EQ(ids.Count(), 1);
    EXPECT_EQ(ids.Take(), first);
    EXPECT_TRUE(ids.CanTake());
    EXPECT_EQ(ids.Take(), first + 1);
    ids.ReserveDynamic(false);
    EXPECT_FALSE(ids.CanTake());
    EXPECT_EQ(ids.Count(), 3);
  }
}

TEST(CommandIds, ReservesForDynamicFoldersByWhatIsLeft) {
  constexpr std::int32_t rows[][2] = {{10, 0},      {11, 1},      {1000, 990},  {1001, 1000},
                                      {2500, 1000}, {2501, 2500}, {5000, 2500}, {5001, 5000}};
  for (const auto& [left, reserved] : rows) {
    CommandIds ids(1, 51 + left);
    for (int i = 0; i < 50; ++i) ids.Take();
    ids.ReserveDynamic(false);
    EXPECT_EQ(ids.Next(), 51 + reserved) << left;
    ids.ResumeDynamic();
    for (int i = 0; i < reserved; ++i) ids.Take();
    EXPECT_FALSE(ids.CanTake()) << left;
  }
}

}  // namespace
}  // namespace orvane
