#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "numbers/convert.h"

namespace quarn::host {
namespace {

TEST(ToInt, TruncatesTowardZero) {
  EXPECT_EQ(toInt(3.9), 3);
  EXPECT_EQ(toInt(-3.9), -3);
  EXPECT_EQ(toInt(-0.9), 0);
}

TEST(ToInt, KeepsTheWholeRange) {
  EXPECT_EQ(toInt(2147483647.9), INT_MAX);
  EXPECT_EQ(toInt(-2147483648.9), INT_MIN);
}

TEST(ToInt, BecomesTheSmallestIntegerWhereNothingFits) {
  EXPECT_EQ(toInt(2147483648.0), INT_MIN);
  EXPECT_EQ(toInt(-2147483649.0), INT_MIN);
  EXPECT_EQ(toInt(std::numeric_limits<double>::infinity()), INT_MIN);
  EXPECT_EQ(toInt(std::nan("")), INT_MIN);
}

TEST(ToInt64, TruncatesAndBecomesTheSmallestIntegerWhereNothingFits) {
  EXPECT_EQ(toInt64(55394028842051.7), 55394028842051);
  EXPECT_EQ(toInt64(9223372036854775808.0), INT64_MIN);
  EXPECT_EQ(toInt64(-9223372036854775808.0), INT64_MIN);
  EXPECT_EQ(toInt64(std::nan("")), INT64_MIN);
}

}  // namespace
}  // namespace quarn::host
