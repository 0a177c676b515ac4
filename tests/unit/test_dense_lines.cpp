#include <gtest/gtest.h>

#include <numeric>

#include "random_matrix.h"
#include "sparse/dense_lines.h"
#include "sparse/line_runs.h"
#include "sparse/line_sums.h"

namespace quarn {
namespace {

using test::Lines;
using test::randomVector;

/// The stated order, said once more: eight partial sums, combined crosswise.
double stated(int n, const double* pr, const double* x) {
  double s[8] = {};
  for (int k = 0; k < n; ++k) s[k % 8] += pr[k] * x[k];
  return ((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7]));
}

TEST(FullLines, AreEightOrMoreConsecutiveIndices) {
  std::vector<int> ir(12);
  std::iota(ir.begin(), ir.end(), 5);
  EXPECT_FALSE(isFull(0, ir.data()));
  EXPECT_FALSE(isFull(7, ir.data()));
  EXPECT_TRUE(isFull(8, ir.data()));
  EXPECT_TRUE(isFull(12, ir.data()));
  std::swap(ir[3], ir[4]);  // the same places, in another order
  EXPECT_FALSE(isFull(12, ir.data()));
  ir = {0, 1, 1, 2, 3, 4, 5, 7};
  EXPECT_FALSE(isFull(8, ir.data()));
  ir = {2147483647, 0, 0, 0, 0, 0, 0, -2147483647 - 1};
  EXPECT_FALSE(isFull(8, ir.data()));
}

TEST(FullLines, AreSummedInTheStatedOrderAloneAndTogether) {
  for (int n = 1; n < 70; ++n) {
    for (int rows = 1; rows < 10; ++rows) {
      const auto pr = randomVector(n * rows, static_cast<unsigned>(n));
      const auto u = randomVector(n, 1);
      const auto v = randomVector(n, 2);
      std::vector<double> one(static_cast<std::size_t>(rows));
      auto yu = one;
      auto yv = one;
      denseSums(rows, n, pr.data(), u.data(), one.data());
      denseSumsOfTwo(rows, n, pr.data(), u.data(), yu.data(), v.data(), yv.data());
      for (int i = 0; i < rows; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const double* row = pr.data() + static_cast<std::ptrdiff_t>(i) * n;
        EXPECT_EQ(one[at], stated(n, row, u.data()));
        EXPECT_EQ(yu[at], one[at]);
        EXPECT_EQ(yv[at], stated(n, row, v.data()));
      }
    }
  }
}

TEST(FullLines, AddTheSumOfTheirProductsAtOnce) {
  // 1e16 + (1 + 1) is 1e16 + 2; adding one by one would lose both.
  const int n = 41;
  const int starts[] = {0, n, n, 2 * n};
  const std::vector<double> ones(2 * n, 1.0);
  const double f[] = {1.0, 3.0, 1.0};
  std::vector<double> y(n, 1e16);
  addDenseRows(3, n, starts, ones.data(), f, y.data());
  EXPECT_EQ(y, std::vector<double>(n, 1e16 + 2));
}

TEST(FullLines, WithoutForceAddNothingWhateverTheyHold) {
  const int n = 9;
  const std::vector<double> wild(2 * n, std::numeric_limits<double>::infinity());
  const int starts[] = {0, n, 2 * n};
  const double f[] = {0.0, -0.0};
  for (int rows = 1; rows < 3; ++rows) {
    std::vector<double> y(n, 4.0);
    addDenseRows(rows, n, starts, wild.data(), f, y.data());
    EXPECT_EQ(y, std::vector<double>(n, 4.0));
  }
}

TEST(FullLines, RunTogetherWhereTheyHaveTheSamePlaces) {
  Lines m;
  m.jc = {0, 8, 16, 24, 26, 34, 43};
  m.ir.clear();
  for (const int first : {0, 0, 1, -1, 1, 0}) {
    const int count = first < 0 ? 2 : m.ir.size() == 34 ? 9 : 8;
    for (int k = 0; k < count; ++k) m.ir.push_back(first < 0 ? 5 : first + k);
  }
  const auto pr = randomVector(43, 3);
  const StoredLines lines{6, m.ir.data(), m.jc.data(), pr.data()};
  int runs[6];
  EXPECT_TRUE(findRuns(lines, runs));
  EXPECT_EQ(std::vector<int>(runs, runs + 6), (std::vector<int>{2, 1, 1, 0, 1, 1}));
  const auto x = randomVector(9, 4);
  double y[6];
  sumLines(lines, runs, x.data(), y);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(y[i], 0.0 + lineSum(m.jc[i + 1] - m.jc[i], pr.data() + m.jc[i], m.ir.data() + m.jc[i], x.data()));
  int first = -1;
  int length = -1;
  EXPECT_FALSE(isBlock(lines, &first, &length));
  EXPECT_TRUE(isBlock({2, m.ir.data(), m.jc.data(), pr.data()}, &first, &length));
  EXPECT_EQ(first, 0);
  EXPECT_EQ(length, 8);
  const int empty[] = {0, 0, 0};
  EXPECT_FALSE(isBlock({2, m.ir.data(), empty, pr.data()}, &first, &length));
}

}  // namespace
}  // namespace quarn
