#include "shellext/CommandIds.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

TEST(CommandIds, HandsOutTheRangeAndStopsAtItsEnd) {
  CommandIds ids(100, 101);
  EXPECT_EQ(ids.Count(), 1);
  EXPECT_TRUE(ids.CanTake());
  EXPECT_EQ(ids.Take(), 100);
  EXPECT_EQ(ids.Take(), 101);
  EXPECT_FALSE(ids.CanTake());
  EXPECT_EQ(ids.Count(), 3);
}

TEST(CommandIds, ReservesForDynamicFoldersByWhatIsLeft) {
  struct Row {
    std::int32_t left;
    std::int32_t reserved;
  };
  constexpr Row rows[] = {{5, 0},       {10, 0},      {11, 1},      {800, 790},
                          {1000, 990},  {1001, 1000}, {2500, 1000}, {2501, 2500},
                          {5000, 2500}, {5001, 5000}, {30000, 5000}};
  for (const Row& row : rows) {
    CommandIds ids(1, 51 + row.left);
    for (int i = 0; i < 50; ++i) ids.Take();
    ids.ReserveDynamic();
    EXPECT_EQ(ids.Next(), 51 + row.reserved) << row.left;
  }
}

TEST(CommandIds, SurvivesTheEndOfThe32BitRange) {
  constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
  CommandIds ids(most, most);
  EXPECT_EQ(ids.Take(), most);
  EXPECT_FALSE(ids.CanTake());
  EXPECT_EQ(ids.Count(), 2);
  ids.ReserveDynamic();
  EXPECT_FALSE(ids.CanTake());
}

}  // namespace
}  // namespace orvane
