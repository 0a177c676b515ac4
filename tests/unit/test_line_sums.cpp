#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "random_matrix.h"
#include "sparse/column_sums.h"
#include "sparse/line_sums.h"

namespace quarn {
namespace {

using test::randomVector;
using test::statedSum;

/// Numbers far apart in size, so that every other order of a sum shows in its bits.
std::vector<double> wideVector(int n, unsigned seed) {
  std::vector<double> x = randomVector(n, seed);
  for (std::size_t i = 0; i < x.size(); ++i) x[i] *= std::pow(10.0, static_cast<double>((i * 7 + seed) % 9) - 4.0);
  return x;
}

std::vector<int> indices(int n, int step) {
  std::vector<int> ir(static_cast<std::size_t>(n));
  for (int k = 0; k < n; ++k) ir[static_cast<std::size_t>(k)] = (3 + k * step) % 101;
  return ir;
}

TEST(LineSum, IsFormedInTheStatedOrderAtEveryLengthWhereverTheEntriesAre) {
  const auto x = wideVector(101, 1);
  for (int n = 0; n < 90; ++n) {
    for (const int step : {1, 37, 50, 77}) {  // a full line and scattered ones
      const auto pr = wideVector(n + 1, static_cast<unsigned>(n + step));
      const auto ir = indices(n, step);
      EXPECT_EQ(lineSum(n, pr.data(), ir.data(), x.data()), statedSum(n, pr.data(), ir.data(), x.data())) << n << " entries, step " << step;
    }
  }
}

TEST(LineSum, ReadsNothingBesideItsEntries) {
  // What lies before and behind is not a number.
  const double nan = std::nan("");
  for (int n = 0; n < 40; ++n) {
    std::vector<double> pr(static_cast<std::size_t>(n) + 4, nan);
    std::fill(pr.begin() + 2, pr.end() - 2, 1.0);
    std::vector<double> x(101, nan);
    const auto ir = indices(n, 37);
    for (const int i : ir) x[static_cast<std::size_t>(i)] = 2.0;
    EXPECT_EQ(lineSum(n, pr.data() + 2, ir.data(), x.data()), 2.0 * n);
  }
}

TEST(LineSum, IsNeverANegativeZero) {
  const std::vector<double> zeros(40, -0.0);
  const std::vector<double> ones(101, 1.0);
  for (int n = 0; n < 40; ++n) {
    for (const int step : {1, 37}) {
      EXPECT_FALSE(std::signbit(lineSum(n, zeros.data(), indices(n, step).data(), ones.data()))) << n;
    }
  }
}

TEST(ColumnSums, HaveTheBitsOfLineSumWhateverTheNumberOfColumns) {
  const int rows = 101;
  std::vector<int> ir, jc{0};
  for (int n = 0; n < 40; ++n) {
    for (const int step : {1, 37}) {
      const auto more = indices(n, step);
      ir.insert(ir.end(), more.begin(), more.end());
      jc.push_back(static_cast<int>(ir.size()));
    }
  }
  const auto pr = wideVector(static_cast<int>(ir.size()), 5);
  const SparseLines s{ir.data(), jc.data(), pr.data()};
  const std::size_t lines = jc.size() - 1;
  const std::size_t first = 3;
  for (std::size_t columns = 0; columns < 12; ++columns) {
    const auto base = wideVector(rows * static_cast<int>(columns) + 1, 6);
    const std::size_t ldG = columns + 2;
    std::vector<double> g(lines * ldG, 77.0);
    columnSums(g.data(), ldG, s, first, lines - first, {base.data(), rows, columns});
    for (std::size_t l = 0; l + first < lines; ++l) {
      const int k = jc[l + first];
      for (std::size_t j = 0; j < ldG; ++j) {
        const double wanted = j < columns ? lineSum(jc[l + first + 1] - k, pr.data() + k, ir.data() + k, base.data() + j * rows) : 77.0;
        EXPECT_EQ(g[l * ldG + j], wanted) << l << ' ' << j;
      }
    }
  }
}

TEST(ColumnSums, AreNeverNegativeZeros) {
  const std::vector<double> zeros(40, -0.0);
  const std::vector<double> ones(4 * 101, 1.0);
  for (int n = 0; n < 40; ++n) {
    const auto ir = indices(n, 37);
    const int jc[] = {0, n};
    double g[4];
    columnSums(g, 4, {ir.data(), jc, zeros.data()}, 0, 1, {ones.data(), 101, 4});
    for (const double sum : g) EXPECT_FALSE(std::signbit(sum)) << n;
  }
}

}  // namespace
}  // namespace quarn
