#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "integration/knots.h"
#include "random_matrix.h"

namespace quarn {
namespace {

void expectPlace(Knots& knots, double t, int at, double weight) {
  const KnotPlace place = knots.find(t);
  EXPECT_EQ(place.at, at) << t;
  EXPECT_EQ(place.weight, weight) << t;
}

TEST(Knots, ATimeIsFoundFromWhereverTheSearchBegins) {
  const std::vector<double> x{0, 1, 3, 3, 4};
  Knots knots(x.data(), 1, 5);
  for (int round = 0; round < 2; ++round) {
    expectPlace(knots, 4, 4, 0);
    expectPlace(knots, 0, 0, 0);
    expectPlace(knots, 3.25, 3, 0.25);
    expectPlace(knots, 0.5, 0, 0.5);
    expectPlace(knots, 1, 1, 0);
    expectPlace(knots, 2.5, 1, 0.75);
  }
}

TEST(Knots, TwoEqualTimesAreAJumpMidway) {
  const std::vector<double> x{1, 1, 2, 2};
  Knots knots(x.data(), 1, 4);
  expectPlace(knots, 1, 0, 0.5);
  expectPlace(knots, 2, 2, 0.5);
  expectPlace(knots, 1.5, 1, 0.5);
}

TEST(Knots, TimesAreAStrideApart) {
  const std::vector<double> table{0, -7, 2, -8, 4, -9};
  Knots knots(table.data(), 2, 3);
  EXPECT_EQ(knots.firstWrong(), 3);
  EXPECT_EQ(knots.first(), 0);
  EXPECT_EQ(knots.last(), 4);
  expectPlace(knots, 3, 1, 0.5);
}

TEST(Knots, OneTimeCoversItself) {
  const double x = 2;
  Knots knots(&x, 1, 1);
  EXPECT_TRUE(knots.covers(2));
  EXPECT_FALSE(knots.covers(std::nextafter(2.0, 3.0)));
  EXPECT_FALSE(knots.covers(std::nextafter(2.0, 1.0)));
  EXPECT_FALSE(knots.covers(std::nan("")));
  EXPECT_FALSE(Knots().covers(0));
  expectPlace(knots, 2, 0, 0);
}

TEST(Knots, StayInsideATableThatHasBeenWrittenInto) {
  std::vector<double> x{0, 1, 2};
  Knots knots(x.data(), 1, 3);
  knots.find(2);
  for (const double t : {5.0, -5.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    const KnotPlace place = knots.find(t);
    EXPECT_GE(place.at, 0);
    EXPECT_LE(place.at + (place.weight == 0.0 ? 0 : 1), 2);
  }
}

TEST(Knots, NameTheFirstTimeThatIsWrong) {
  const double inf = std::numeric_limits<double>::infinity();
  const std::vector<std::pair<std::vector<double>, int>> cases{{{}, 0},        {{5}, 1},         {{1, 2, 3}, 3},      {{1, 1, 2, 2}, 4},
                                                               {{1, 1, 1}, 2}, {{2, 1}, 1},      {{std::nan("")}, 0}, {{0, inf}, 1},
                                                               {{-inf, 0}, 0}, {{0, 1, 1, 1}, 3}};
  for (const auto& [x, wrong] : cases) EXPECT_EQ(Knots(x.data(), 1, static_cast<int>(x.size())).firstWrong(), wrong);
}

TEST(Knots, TellWhetherTheTimeBetweenThemIsANumber) {
  const std::vector<std::pair<std::vector<double>, bool>> cases{
      {{}, true}, {{1e308}, true}, {{-8e307, 8e307}, true}, {{-1e308, 0, 1e308}, false}};
  for (const auto& [x, finite] : cases) EXPECT_EQ(Knots(x.data(), 1, static_cast<int>(x.size())).spanIsFinite(), finite);
}

}  // namespace
}  // namespace quarn
