#include <gtest/gtest.h>

#include "common/Watchdog.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new orvane::test::Watchdog);
  return RUN_ALL_TESTS();
}
