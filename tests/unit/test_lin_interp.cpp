#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "nonlinear/lin_interp.h"

namespace quarn {
namespace {

// A jump at 1: abscissae 0 1 1 2, values 10 20 30 40.
const double jump[] = {0, 1, 1, 2, 10, 20, 30, 40};

double value(const double* table, int nx, double query, double* rec) {
  double out = -1;
  vorel_LinInterp(table, &query, rec, &out, nx, 1, 1, 1, nullptr, nullptr);
  return out;
}

TEST(LinInterp, QueryOnAJumpGetsTheMeanWhateverTheStart) {
  for (int start = -2; start < 8; ++start) {
    double rec[3] = {static_cast<double>(start), 0, 0};
    EXPECT_EQ(value(jump, 4, 1.0, rec), 25.0) << start;
    EXPECT_EQ(rec[2], 0.5);
  }
}

TEST(LinInterp, QueryOnAJumpAtTheFirstKnotsGetsTheMeanWhateverTheStart) {
  const double first[] = {1, 1, 2, 20, 30, 40};
  for (int start = -2; start < 8; ++start) {
    double rec[3] = {static_cast<double>(start), 0, 0};
    EXPECT_EQ(value(first, 3, 1.0, rec), 25.0) << start;
  }
}

TEST(LinInterp, QueryAboveTheLastKnotExtrapolatesAndLeavesTheRecordBehindTheLastSegment) {
  double rec[3] = {};
  EXPECT_EQ(value(jump, 4, 3.0, rec), 50.0);
  EXPECT_EQ(rec[0], 3.0);
  EXPECT_EQ(rec[2], 2.0);
}

TEST(LinInterp, QueryBelowTheFirstKnotExtrapolatesWithANegativeFraction) {
  double rec[3] = {};
  EXPECT_EQ(value(jump, 4, -1.0, rec), 0.0);
  EXPECT_EQ(rec[0], 0.0);
  EXPECT_EQ(rec[2], -1.0);
}

TEST(LinInterp, InnerKnotEndsOnTheSegmentBelowWhenReachedFromBelowAndAboveWhenReachedFromAbove) {
  const double table[] = {0, 1, 2, 3, 0, 1, 4, 9};
  double fromBelow[3] = {0, 0, 0};
  EXPECT_EQ(value(table, 4, 2.0, fromBelow), 4.0);
  EXPECT_EQ(fromBelow[0], 1.0);
  double fromAbove[3] = {2, 0, 0};
  EXPECT_EQ(value(table, 4, 2.0, fromAbove), 4.0);
  EXPECT_EQ(fromAbove[0], 2.0);
}

TEST(LinInterp, RecordHoldsTheFirstQueryForEveryQuery) {
  const double x[] = {0.25, 1.75};
  double rec[3] = {};
  double out[2];
  vorel_LinInterp(jump, x, rec, out, 4, 1, 2, 1, nullptr, nullptr);
  EXPECT_EQ(rec[1], 0.25);
  EXPECT_EQ(out[0], 12.5);
  EXPECT_EQ(out[1], 37.5);
}

TEST(LinInterp, NaNQueryStopsAtTheStartSegmentAndYieldsNaN) {
  double rec[3] = {2, 0, 0};
  EXPECT_TRUE(std::isnan(value(jump, 4, std::nan(""), rec)));
  EXPECT_EQ(rec[0], 2.0);
}

TEST(LinInterp, OneKnotReturnsItsValueWithoutLookingAtANextOne) {
  const double table[] = {5, 7};
  for (const double q : {4.0, 5.0, 6.0}) {
    double rec[3] = {3, 0, 0};
    EXPECT_EQ(value(table, 1, q, rec), 7.0);
    EXPECT_EQ(rec[0], 0.0);
    EXPECT_EQ(rec[2], 0.0);
  }
}

TEST(LinInterp, OneKnotReturnsTheValueOfTheSecondTableToo) {
  const double table[] = {5, 7};
  const double second[] = {5, 11};
  const double query = 6.0;
  double rec[3] = {};
  double out;
  double out2;
  vorel_LinInterp(table, &query, rec, &out, 1, 1, 1, 1, second, &out2);
  EXPECT_EQ(out, 7.0);
  EXPECT_EQ(out2, 11.0);
}

TEST(LinInterp, PositionOnlyWritesNoValueAndOneKnotHasTheFractionOne) {
  const double query = 0.5;
  double rec[3] = {};
  double out = -9;
  vorel_LinInterp(jump, &query, rec, &out, 4, 1, 1, 0, nullptr, nullptr);
  EXPECT_EQ(out, -9.0);
  EXPECT_EQ(rec[2], 0.5);
  const double table[] = {5, 7};
  vorel_LinInterp(table, &query, rec, &out, 1, 1, 1, 0, nullptr, nullptr);
  EXPECT_EQ(rec[2], 1.0);
  EXPECT_EQ(out, -9.0);
}

TEST(LinInterp, PositionOnlyDoesNotResolveJumps) {
  const double query = 1.0;
  double rec[3] = {};
  vorel_LinInterp(jump, &query, rec, nullptr, 4, 1, 1, 0, nullptr, nullptr);
  EXPECT_EQ(rec[0], 0.0);
  EXPECT_EQ(rec[2], 1.0);
}

TEST(LinInterp, WithoutValueColumnsTheSegmentNumberIsReturned) {
  const double x[] = {-5.0, 1.5, 9.0};
  double rec[3] = {};
  double out[3];
  vorel_LinInterp(jump, x, rec, out, 4, 0, 3, 1, nullptr, nullptr);
  EXPECT_EQ(out[0], 1.0);
  EXPECT_EQ(out[1], 3.0);
  EXPECT_EQ(out[2], 3.0);
}

TEST(LinInterp, WithoutKnotsThereIsNoValue) {
  const double query = 1.0;
  double rec[3] = {0, 0, 0.25};
  double out = -9;
  vorel_LinInterp(jump, &query, rec, &out, 0, 1, 1, 1, nullptr, nullptr);
  EXPECT_EQ(out, -9.0);
  EXPECT_EQ(rec[0], -1.0);
}

TEST(LinInterp, SecondTableGetsTheSameWeights) {
  const double second[] = {0, 0, 0, 0, 1, 2, 3, 4};
  const double query = 1.5;
  double rec[3] = {};
  double out;
  double out2;
  vorel_LinInterp(jump, &query, rec, &out, 4, 1, 1, 1, second, &out2);
  EXPECT_EQ(out, 35.0);
  EXPECT_EQ(out2, 3.5);
}

TEST(LinInterp, ColumnsAreWrittenColumnByColumn) {
  const double table[] = {0, 1, 0, 10, 100, 200};
  const double x[] = {0.5, 1.0, 2.0};
  double rec[3] = {};
  double out[6];
  vorel_LinInterp(table, x, rec, out, 2, 2, 3, 1, nullptr, nullptr);
  const double wanted[] = {5, 10, 20, 150, 200, 300};
  for (int k = 0; k < 6; ++k) EXPECT_EQ(out[k], wanted[k]) << k;
}

TEST(LinInterp, NoQueriesLeaveTheRecordAlone) {
  double rec[3] = {7, 8, 9};
  vorel_LinInterp(jump, nullptr, rec, nullptr, 4, 1, 0, 1, nullptr, nullptr);
  EXPECT_EQ(rec[0], 7.0);
}

TEST(LinInterp, KnotsThatDescendAtTheEndDoNotWalkForEver) {
  const double table[] = {0, 2, 1, 10, 20, 30};
  double rec[3] = {5, 0, 0};
  EXPECT_TRUE(std::isfinite(value(table, 3, 1.5, rec)));
  EXPECT_EQ(rec[0], 1.0);
}

TEST(LinInterp, AgreesWithASearchFromScratchOnRandomTables) {
  std::mt19937 random(42);
  std::uniform_real_distribution<double> uniform(-1, 1);
  for (int trial = 0; trial < 300; ++trial) {
    const int nx = 2 + trial % 17;
    std::vector<double> table(static_cast<std::size_t>(2 * nx));
    double x = uniform(random);
    for (int i = 0; i < nx; ++i) {
      table[static_cast<std::size_t>(i)] = x;
      table[static_cast<std::size_t>(nx + i)] = uniform(random);
      x += 0.01 + std::abs(uniform(random));
    }
    double rec[3] = {static_cast<double>(trial % 23) - 3, 0, 0};
    for (int k = 0; k < 20; ++k) {
      const double q = table[0] + (table[static_cast<std::size_t>(nx - 1)] - table[0]) * 0.75 * (1 + uniform(random)) - 0.2;
      int s = 0;
      while (s < nx - 2 && q > table[static_cast<std::size_t>(s + 1)]) ++s;
      const double x0 = table[static_cast<std::size_t>(s)];
      const double f = (q - x0) / (table[static_cast<std::size_t>(s + 1)] - x0);
      const double wanted = f * table[static_cast<std::size_t>(nx + s + 1)] + (1.0 - f) * table[static_cast<std::size_t>(nx + s)];
      EXPECT_EQ(value(table.data(), nx, q, rec), wanted);
    }
  }
}

// Short and long tables, doubled knots, knots and queries at infinity, NaN, records from everywhere.
TEST(LinInterp, FarJumpsInAscendingTablesFindWhatTheWalkFinds) {
  std::mt19937 random(17);
  const double inf = std::numeric_limits<double>::infinity();
  for (int round = 0; round < 3000; ++round) {
    const int nx = 1 + static_cast<int>(random() % (round % 2 ? 6 : 120));
    std::vector<double> table;
    for (int i = 0; i < nx; ++i) table.push_back(static_cast<double>(random() % static_cast<unsigned>(nx)));
    if (random() % 4 == 0) table[0] = -inf;
    if (random() % 4 == 0) table[table.size() - 1] = inf;
    std::sort(table.begin(), table.end());
    for (int i = 0; i < 2 * nx; ++i) table.push_back(std::sin(i));
    double walked[3] = {static_cast<double>(random() % 200) - 40.0, 0.0, 0.0};
    if (random() % 10 == 0) walked[0] = random() % 2 ? 1e300 : std::nan("");
    double halved[3] = {walked[0], 0.0, 0.0};
    for (int q = 0; q < 20; ++q) {
      const double choices[] = {table[random() % static_cast<unsigned>(nx)], static_cast<double>(random() % 130) - 5.0 + 0.5,
                                q % 5 ? -0.0 : std::nan(""), q % 2 ? inf : -inf};
      const double x[] = {choices[random() % 4], choices[random() % 3]};
      double one[4];
      double other[4];
      vorel_LinInterp(table.data(), x, walked, one, nx, 2, 2, 1, nullptr, nullptr, false);
      vorel_LinInterp(table.data(), x, halved, other, nx, 2, 2, 1, nullptr, nullptr, true);
      EXPECT_EQ(std::memcmp(one, other, sizeof one), 0);
      EXPECT_EQ(std::memcmp(walked, halved, sizeof walked), 0);
    }
  }
}

// Queries that stay in a segment, leave it, meet knots or end in jumps; knots in order and in none.
TEST(LinInterp, ManyQueriesOfOneColumnGetTheValuesAndTheRecordOfOneAfterTheOther) {
  std::mt19937 random(23);
  const double inf = std::numeric_limits<double>::infinity();
  for (int round = 0; round < 4000; ++round) {
    const bool ordered = round % 4 != 0;
    const auto nx = static_cast<unsigned>(2 + random() % (round % 2 ? 5 : 60));
    std::vector<double> table;
    for (unsigned i = 0; i < nx; ++i) table.push_back(static_cast<double>(random() % (2 * nx)));
    if (random() % 4 == 0) table[0] = -inf;
    if (random() % 4 == 0) table[nx - 1] = inf;
    if (ordered) std::sort(table.begin(), table.end());
    if (!ordered && random() % 4 == 0) table[random() % nx] = std::nan("");
    for (unsigned i = 0; i < nx; ++i) table.push_back(std::sin(i));
    std::vector<double> x;
    for (int q = 0; q < 30; ++q) {
      const double choices[] = {table[random() % nx], static_cast<double>(random() % (2 * nx + 4)) - 1.5, q % 7 ? -0.0 : std::nan(""),
                                q % 2 ? inf : -inf};
      x.push_back(q > 0 && random() % 2 ? x.back() + 0.125 : choices[random() % (q % 3 ? 2 : 4)]);
    }
    double wanted[3] = {static_cast<double>(random() % (nx + 6)) - 3.0, 0.0, 0.0};
    if (random() % 20 == 0) wanted[0] = random() % 2 ? 1e300 : std::nan("");
    double got[3] = {wanted[0], 5.0, 6.0};
    std::vector<double> one(x.size());
    std::vector<double> other(x.size());
    const int n = static_cast<int>(x.size());
    vorel_LinInterp(table.data(), x.data(), wanted, one.data(), static_cast<int>(nx), 1, n, 1, nullptr, nullptr, false);
    interpolateApart(table.data(), x.data(), got, other.data(), static_cast<int>(nx), n, ordered);
    EXPECT_EQ(std::memcmp(one.data(), other.data(), one.size() * sizeof(double)), 0) << round;
    EXPECT_EQ(std::memcmp(wanted, got, sizeof wanted), 0) << round;
  }
}

// A query after the other, from records that point anywhere.
TEST(LinInterp, OneQueryOfOneColumnGetsTheValueAndTheRecordOfTheWholeTable) {
  std::mt19937 random(29);
  const double inf = std::numeric_limits<double>::infinity();
  for (int round = 0; round < 2000; ++round) {
    const auto nx = static_cast<unsigned>(2 + random() % (round % 2 ? 5 : 60));
    std::vector<double> table;
    for (unsigned i = 0; i < nx; ++i) table.push_back(static_cast<double>(random() % (2 * nx)));
    if (random() % 4 == 0) table[0] = -inf;
    if (random() % 4 == 0) table[nx - 1] = inf;
    std::sort(table.begin(), table.end());
    for (unsigned i = 0; i < nx; ++i) table.push_back(std::sin(i));
    double wanted[3] = {static_cast<double>(random() % (nx + 6)) - 3.0, 0.0, 0.0};
    if (random() % 20 == 0) wanted[0] = random() % 2 ? 1e300 : std::nan("");
    double got[3] = {wanted[0], 5.0, 6.0};
    for (int q = 0; q < 20; ++q) {
      const double choices[] = {table[random() % nx], static_cast<double>(random() % (2 * nx + 4)) - 1.5, q % 7 ? -0.0 : std::nan(""),
                                q % 2 ? inf : -inf};
      const double x = choices[random() % 4];
      double one;
      vorel_LinInterp(table.data(), &x, wanted, &one, static_cast<int>(nx), 1, 1, 1, nullptr, nullptr, true);
      const double other = interpolateOne(table.data(), x, got, static_cast<int>(nx));
      EXPECT_EQ(std::memcmp(&one, &other, sizeof one), 0) << round;
      EXPECT_EQ(std::memcmp(wanted, got, sizeof wanted), 0) << round;
    }
  }
}

TEST(LinInterp, NoQueriesOfOneColumnLeaveTheRecordAlone) {
  double rec[3] = {7, 8, 9};
  interpolateApart(jump, nullptr, rec, nullptr, 4, 0, true);
  EXPECT_EQ(rec[0], 7.0);
  EXPECT_EQ(rec[2], 9.0);
}

// The segment of the query, or one of the two at the knot that is met; the last one goes on.
TEST(LinInterp, ASearchEndsInOneSegmentWhereverItStartsUnlessAKnotIsMet) {
  std::mt19937 random(29);
  for (int round = 0; round < 300; ++round) {
    const int nx = 1 + static_cast<int>(random() % (round % 2 ? 6 : 90));
    std::vector<double> knots(1, -3.0);
    while (static_cast<int>(knots.size()) < nx) knots.push_back(knots.back() + 0.5 * static_cast<double>(1 + random() % 3));
    const double x = -4.0 + 0.25 * static_cast<double>(random() % static_cast<unsigned>(8 * nx + 8));
    const int below = static_cast<int>(std::lower_bound(knots.begin(), knots.end(), x) - knots.begin()) - 1;
    const bool met = std::binary_search(knots.begin(), knots.end(), x);
    const int last = std::max(nx - 2, 0);
    const int wanted = std::min(std::max(below, 0), last);
    for (int start = -2; start < nx + 3; ++start) {
      const int s = std::min(searchAscending(knots.data(), nx, start, x), last);
      EXPECT_TRUE(s == wanted || (met && s == std::min(below + 1, last))) << x << " from " << start;
    }
  }
}

TEST(LinInterp, ASearchInWhatDoesNotAscendStaysWithinIt) {
  std::mt19937 random(31);
  for (int round = 0; round < 3000; ++round) {
    const int nx = 1 + static_cast<int>(random() % 40);
    std::vector<double> knots;
    for (int i = 0; i < nx; ++i) knots.push_back(random() % 9 ? static_cast<double>(random() % 20) : std::nan(""));
    const double x = random() % 9 ? static_cast<double>(random() % 24) - 2.0 : std::nan("");
    const int s = searchAscending(knots.data(), nx, static_cast<int>(random() % 50) - 5, x);
    EXPECT_GE(s, 0);
    EXPECT_LE(s, nx - 1);
  }
}

}  // namespace
}  // namespace quarn
