#include <gtest/gtest.h>
#include <oneapi/tbb/global_control.h>

#include "random_matrix.h"
#include "sparse/sp_tbb.h"

namespace quarn {
namespace {

using test::Lines;
using test::randomLines;
using test::randomVector;

std::vector<double> serial(const Lines& m, const std::vector<double>& x, std::vector<double> y) {
  for (std::size_t i = 0; i < y.size(); ++i) {
    const int k0 = m.jc[i];
    y[i] += test::statedSum(m.jc[i + 1] - k0, m.pr.data() + k0, m.ir.data() + k0, x.data());
  }
  return y;
}

TEST(SparseMatVec, EqualsTheSerialSumBitForBitAtEverySizeAndRunToRun) {
  for (const int n : {1, 999, 1000, 1001, 2001, 50000}) {
    const Lines m = randomLines(n, n, 40, static_cast<unsigned>(n));
    if (n == 50000) {
      ASSERT_GT(m.jc[n], parallelEntries);
    }
    const auto x = randomVector(n, 1);
    const auto start = randomVector(n, 2);
    const auto wanted = serial(m, x, start);
    for (int run = 0; run < 5; ++run) {
      auto y = start;
      SparseMatVec(y.data(), x.data(), m.pr.data(), m.ir.data(), m.jc.data(), n);
      EXPECT_EQ(y, wanted) << n;
    }
  }
}

TEST(SparseMatVec, GivesTheSameBitsWithOneToEightThreads) {
  const int n = 30000;
  const Lines m = randomLines(n, n, 40, 7);
  ASSERT_GT(m.jc[n], parallelEntries);
  const auto x = randomVector(n, 1);
  const auto wanted = serial(m, x, std::vector<double>(static_cast<std::size_t>(n)));
  for (std::size_t threads = 1; threads <= 8; ++threads) {
    tbb::global_control limit(tbb::global_control::max_allowed_parallelism, threads);
    std::vector<double> y(static_cast<std::size_t>(n));
    SparseMatVec(y.data(), x.data(), m.pr.data(), m.ir.data(), m.jc.data(), n);
    EXPECT_EQ(y, wanted) << threads;
  }
}

TEST(SparseMatVec, NullValuesLeaveTheResultUntouched) {
  std::vector<double> y{1, 2};
  const double x[] = {1, 1};
  SparseMatVec(y.data(), x, nullptr, nullptr, nullptr, 2);
  EXPECT_EQ(y, (std::vector<double>{1, 2}));
}

TEST(SparseMatVec, NoLinesAndNegativeCountsLeaveTheResultUntouched) {
  const Lines m = randomLines(3, 3, 3, 1);
  std::vector<double> y{1, 2, 3};
  const auto before = y;
  const double x[] = {1, 1, 1};
  for (const int n : {0, -5}) {
    SparseMatVec(y.data(), x, m.pr.data(), m.ir.data(), m.jc.data(), n);
    EXPECT_EQ(y, before);
  }
}

TEST(SparseMatVec, AnEmptyLineAddsNothingAndCallingTwiceDoublesTheTerm) {
  const int jc[] = {0, 0, 1};
  const int ir[] = {1};
  const double pr[] = {4};
  const double x[] = {3, 2};
  double y[] = {10, 20};
  SparseMatVec(y, x, pr, ir, jc, 2);
  SparseMatVec(y, x, pr, ir, jc, 2);
  EXPECT_EQ(y[0], 10.0);
  EXPECT_EQ(y[1], 36.0);
}

TEST(SparseMatVecTested, EqualsTheUntestedProduct) {
  for (const int n : {500, 50000}) {
    const Lines m = randomLines(n, n, 40, 3);
    const auto x = randomVector(n, 1);
    std::vector<double> y(static_cast<std::size_t>(n));
    auto tested = y;
    SparseMatVec(y.data(), x.data(), m.pr.data(), m.ir.data(), m.jc.data(), n);
    EXPECT_EQ(SparseMatVecTested(tested.data(), x.data(), m.pr.data(), m.ir.data(), m.jc.data(), n, static_cast<unsigned>(n)), -1);
    EXPECT_EQ(tested, y);
  }
}

TEST(SparseMatVecTested, WithoutLinesLeavesTheResultUntouched) {
  const int starts[] = {0};
  const int none[] = {0};
  const double value[] = {1.0};
  double y[] = {4.0};
  EXPECT_EQ(SparseMatVecTested(y, value, value, none, starts, 0, 1), -1);
  EXPECT_EQ(y[0], 4.0);
}

TEST(SparseMatVecTested, NamesALineWithAnIndexOutsideAndLeavesItOut) {
  Lines m = randomLines(5000, 5000, 250, 9);
  for (const int outside : {-1, 5000, 1 << 30}) {
    const int line = 3210;
    std::size_t k = static_cast<std::size_t>(m.jc[line]);
    ASSERT_LT(m.jc[line], m.jc[line + 1]);
    m.ir[k] = outside;
    const auto x = randomVector(5000, 1);
    std::vector<double> y(5000, 1.0);
    EXPECT_EQ(SparseMatVecTested(y.data(), x.data(), m.pr.data(), m.ir.data(), m.jc.data(), 5000, 5000), line);
    EXPECT_EQ(y[line], 1.0);
  }
}

}  // namespace
}  // namespace quarn
