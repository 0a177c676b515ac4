#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "numbers/plane_length.h"

namespace quarn {
namespace {

TEST(PlaneLength, HasTheBitsOfTheRootOfTheSumWhereItIsANumber) {
  std::mt19937_64 random(4);
  std::uniform_real_distribution<double> number(-1.0, 1.0);
  for (int i = 0; i < 1000; ++i) {
    const double x = number(random) * std::pow(10.0, 140.0 * number(random));
    const double y = number(random) * std::pow(10.0, 140.0 * number(random));
    EXPECT_EQ(planeLength(x, y), std::sqrt(x * x + y * y)) << x << " " << y;
  }
}

TEST(PlaneLength, IsRightWhereSquaresOverflowOrVanish) {
  for (int e = -1070; e <= 1020; ++e) {
    const double s = std::ldexp(1.0, e);
    EXPECT_EQ(planeLength(3.0 * s, -4.0 * s), 5.0 * s) << e;
    EXPECT_EQ(planeLength(-s, 0.0), s) << e;
    EXPECT_EQ(planeLength(0.0, s), s) << e;
  }
  EXPECT_EQ(planeLength(1e300, 1e-300), 1e300);
  EXPECT_EQ(planeLength(1e-300, 0.0), 1e-300);
}

TEST(PlaneLength, OfNothingIsNothing) {
  EXPECT_EQ(planeLength(0.0, -0.0), 0.0);
  EXPECT_FALSE(std::signbit(planeLength(-0.0, -0.0)));
}

TEST(PlaneLength, OfWhatIsNotFiniteIsNotFinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(planeLength(infinity, 1.0), infinity);
  EXPECT_EQ(planeLength(0.0, -infinity), infinity);
  EXPECT_TRUE(std::isnan(planeLength(nan, 1.0)));
  EXPECT_TRUE(std::isnan(planeLength(0.0, nan)));
  EXPECT_EQ(planeLength(1.7e308, 1.7e308), infinity);
}

}  // namespace
}  // namespace quarn
