#include <gtest/gtest.h>

#include "numbers/ranges.h"

namespace quarn {
namespace {

TEST(Ranges, ThatTouchShareNoMemory) {
  const double x[6] = {};
  EXPECT_FALSE(overlap(x, 2, x + 2, 2));
  EXPECT_FALSE(overlap(x + 2, 2, x, 2));
  EXPECT_FALSE(overlap(x, 1, x + 5, 1));
  EXPECT_FALSE(overlap(x + 5, 1, x, 1));
}

TEST(Ranges, ThatHaveAValueInCommonShareMemory) {
  const double x[6] = {};
  EXPECT_TRUE(overlap(x, 3, x + 2, 2));
  EXPECT_TRUE(overlap(x + 2, 2, x, 3));
  EXPECT_TRUE(overlap(x, 6, x + 2, 1));
  EXPECT_TRUE(overlap(x + 2, 1, x, 6));
}

TEST(Ranges, WithoutValuesShareNoMemory) {
  const double x[6] = {};
  EXPECT_FALSE(overlap(x, 0, x, 6));
  EXPECT_FALSE(overlap(x, 6, x + 2, 0));
  EXPECT_FALSE(overlap(nullptr, 6, x, 6));
  EXPECT_FALSE(overlap(x, 6, nullptr, 6));
}

}  // namespace
}  // namespace quarn
