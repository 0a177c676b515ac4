#include <gtest/gtest.h>

#include <cmath>

#include "base/fixed_errors.h"
#include "host_output.h"
#include "random_matrix.h"
#include "sparse/blas.h"
#include "sparse/mt_kernels.h"
#include "sparse/mt_products.h"

namespace quarn {
namespace {

using test::Lines;
using test::randomLines;
using test::randomVector;

// Two lines: {(0, 2), (2, 3)} and {(1, 5)}.
const int jc[] = {0, 2, 3};
const int ir[] = {0, 2, 1};
const double pr[] = {2, 3, 5};

TEST(AddMtUb, SparseNotTransposedGathersByLine) {
  const int dims[] = {2, 2, 0};
  const double u[] = {1, 10, 100};
  double y[] = {1000, 2000};
  Add_Mt_ub(dims, ir, jc, pr, u, y);
  EXPECT_EQ(y[0], 1302.0);
  EXPECT_EQ(y[1], 2050.0);
}

TEST(AddMtUb, SparseTransposedScattersTheLines) {
  const int dims[] = {2, 3, 1};
  const double u[] = {10, 100};
  double y[] = {1, 2, 3};
  Add_Mt_ub(dims, ir, jc, pr, u, y);
  EXPECT_EQ(y[0], 21.0);
  EXPECT_EQ(y[1], 502.0);
  EXPECT_EQ(y[2], 33.0);
}

TEST(AddMtUb, ScatterFormsTheWholeSumBeforeAddingIt) {
  // 1e16 + (1 + 1) is 1e16 + 2; adding one by one would lose both.
  const int twoLines[] = {0, 1, 2};
  const int same[] = {0, 0};
  const double ones[] = {1, 1};
  const int dims[] = {2, 1, 1};
  const double u[] = {1, 1};
  double y[] = {1e16};
  Add_Mt_ub(dims, same, twoLines, ones, u, y);
  EXPECT_EQ(y[0], 1e16 + 2);
}

TEST(AddMtUb, ScatterOfNoRowsAddsNothing) {
  const int dims[] = {0, 2, 1};
  double y[] = {1, 2};
  Add_Mt_ub(dims, ir, jc, pr, nullptr, y);
  EXPECT_EQ(y[0], 1.0);
  EXPECT_EQ(y[1], 2.0);
}

TEST(AddMtUb, DenseTransposedUsesTheFirstForceAloneWhateverItsRows) {
  const int dims[] = {2, 3, 1};
  const double row[] = {1, 2, 3, 4, 5, 6};
  const double u[] = {10, 1e9};
  double y[] = {1, 1, 1};
  Add_Mt_ub(dims, nullptr, nullptr, row, u, y);
  EXPECT_EQ(y[0], 11.0);
  EXPECT_EQ(y[1], 21.0);
  EXPECT_EQ(y[2], 31.0);
}

TEST(AddMtUb, DenseWithoutRowsDoesNothing) {
  const int dims[] = {0, 3, 0};
  double y[] = {1};
  Add_Mt_ub(dims, nullptr, nullptr, pr, nullptr, y);
  EXPECT_EQ(y[0], 1.0);
}

TEST(AddMtUb, GivenWorkVectorAndOwnGiveTheSameBits) {
  for (unsigned seed = 0; seed < 50; ++seed) {
    const int rows = 1 + static_cast<int>(seed) % 13;
    const int cols = 1 + static_cast<int>(seed) % 29;
    const Lines m = randomLines(rows, cols, 6, seed);
    const auto u = randomVector(rows, 1);
    auto y = randomVector(cols, 2);
    auto wanted = y;
    std::vector<double> w(static_cast<std::size_t>(cols), 77.0);
    const int dims[] = {rows, cols, 1};
    Add_Mt_ub(dims, m.ir.data(), m.jc.data(), m.pr.data(), u.data(), y.data(), w.data());
    Add_Mt_ub(dims, m.ir.data(), m.jc.data(), m.pr.data(), u.data(), wanted.data());
    EXPECT_EQ(y, wanted);
  }
}

TEST(AddMtUb, ScatteredSumsBeginAtZeroWhichAddsToANegativeZero) {
  const int dims[] = {1, 1, 1};
  const int oneLine[] = {0, 1};
  const int place[] = {0};
  const double u[] = {-1.0};
  const double zero[] = {0.0};
  double y[] = {-0.0};
  Add_Mt_ub(dims, place, oneLine, zero, u, y);
  EXPECT_FALSE(std::signbit(y[0]));
}

TEST(Distinct, FindsAPairAnywhereAndLeavesNoMarks) {
  std::vector<double> marks(8, 0.0);
  const int first[] = {5, 5, 7};
  const int last[] = {7, 5, 5};
  const int apart[] = {5, 0, 7};
  EXPECT_FALSE(distinct(3, first, marks.data()));
  EXPECT_FALSE(distinct(3, last, marks.data()));
  EXPECT_TRUE(distinct(3, apart, marks.data()));
  EXPECT_EQ(marks, std::vector<double>(8, 0.0));
}

// Who gives them plain pointers is told as who gives them arrays.
TEST(MtUb, RefuseTheFormsThatTheyDoNotTake) {
  const double u[] = {1, 10, 100};
  double y[] = {7, 8, 9};
  const int dims[] = {2, 3, 0};
  EXPECT_EQ(hostOutput([&] { Add_Mt_ub(dims, nullptr, nullptr, pr, u, y); }).error, fixed::addsSparseOnly.text);
  EXPECT_EQ(hostOutput([&] { Prod_Mt_ub(dims, ir, jc, pr, u, y); }).error, fixed::takesTransposedOnly.text);
  EXPECT_EQ(y[0], 7.0);
  EXPECT_EQ(y[1], 8.0);
}

TEST(ProdMtUb, DenseOverwritesTheResult) {
  const int dims[] = {2, 2, 0};
  const double A[] = {1, 2, 3, 4};
  const double u[] = {10, 100};
  double y[] = {-1e9, -1e9};
  Prod_Mt_ub(dims, nullptr, nullptr, A, u, y);
  EXPECT_EQ(y[0], 310.0);
  EXPECT_EQ(y[1], 420.0);
}

TEST(ProdMtUb, SparseTransposedAccumulates) {
  const int dims[] = {2, 3, 1};
  const double u[] = {1, 10, 100};
  double y[] = {7, 8};
  Prod_Mt_ub(dims, ir, jc, pr, u, y);
  EXPECT_EQ(y[0], 309.0);
  EXPECT_EQ(y[1], 58.0);
}

}  // namespace
}  // namespace quarn
