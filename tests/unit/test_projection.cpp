// The projection kernels against the bilinear form of one pair of columns: the same bits, whatever is formed side by side.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "random_matrix.h"
#include "rounds.h"
#include "same_bits.h"
#include "sparse/phi1tmphi2.h"
#include "sparse/projection_kernels.h"

namespace quarn {
namespace {

using test::sameBits;
using Values = std::vector<double>;

struct Matrix {
  std::vector<int> ir;
  std::vector<int> jc{0};
  Values pr;
  SparseLines lines() const { return {ir.data(), jc.data(), pr.data()}; }
};

class Projection : public ::testing::Test {
 protected:
  Values values(std::size_t n) {
    Values v(n);
    // Far apart in size, so that every other order of a sum shows in its bits.
    for (double& x : v) x = normal(generator) * std::pow(10.0, whole(-4, 4));
    return v;
  }
  int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(generator); }

  Matrix matrix(int lines, int length, int mostEntries) {
    Matrix m;
    for (int i = 0; i < lines; ++i) {
      const int entries = whole(0, 3) == 0 ? 0 : whole(0, mostEntries);
      for (int k = 0; k < entries; ++k) m.ir.push_back(whole(0, length - 1));
      m.jc.push_back(static_cast<int>(m.ir.size()));
    }
    m.pr = values(m.ir.size());
    return m;
  }

  std::mt19937 generator{20240517};
  std::normal_distribution<double> normal;
};

DenseBase baseOf(const Values& re, const Values& im, std::size_t rows, std::size_t cols) {
  return {re.data(), im.empty() ? nullptr : im.data(), rows, cols};
}

/// bilinearForms, pair by pair.
void pairByPair(Values& outR, Values& outI, const DenseBase& a, const DenseBase& b, const Matrix& m, int n) {
  for (std::size_t i = 0; i < a.cols; ++i) {
    for (std::size_t j = 0; j < b.cols; ++j) {
      const double* i1 = a.im ? a.im + i * a.rows : nullptr;
      const double* i2 = b.im ? b.im + j * b.rows : nullptr;
      const std::size_t at = i + j * b.cols;
      phi1tmphi2_mkl(a.re + i * a.rows, i1, b.re + j * b.rows, i2, m.pr.data(), m.ir.data(), m.jc.data(), n, &outR[at],
                     outI.empty() ? nullptr : &outI[at]);
    }
  }
}

TEST_F(Projection, AllPairsTogetherHaveTheBitsOfEachPairAlone) {
  for (int round = 0; round < test::rounds(400); ++round) {
    const int n = round % 20 == 0 ? 0 : whole(1, 200);
    const auto rows = static_cast<std::size_t>(n + 1);
    const Matrix m = matrix(n, n + 1, 40);
    const auto nB = static_cast<std::size_t>(whole(1, 20));
    const std::size_t nA = nB + static_cast<std::size_t>(round % 3 == 0 ? whole(0, 5) : 0);
    const Values ar = values(rows * nA);
    const Values br = values(rows * nB);
    const Values ai = round & 1 ? values(rows * nA) : Values{};
    const Values bi = round & 2 ? values(rows * nB) : Values{};
    const DenseBase a = baseOf(ar, ai, rows, nA);
    const DenseBase b = baseOf(br, bi, rows, nB);
    const bool isComplex = a.im || b.im;
    Values gotR(nA * nB, 0.0), gotI(isComplex ? nA * nB : 0, 0.0);
    Values wantedR = gotR, wantedI = gotI;
    Values work(bilinearWork(nA, nB), 1e300);  // what the memory held must not matter
    bilinearForms(gotR.data(), isComplex ? gotI.data() : nullptr, a, b, m.lines(), static_cast<std::size_t>(n), work.data());
    pairByPair(wantedR, wantedI, a, b, m, n);
    ASSERT_TRUE(sameBits(gotR, wantedR)) << "real part, round " << round;
    ASSERT_TRUE(sameBits(gotI, wantedI)) << "imaginary part, round " << round;
  }
}

TEST_F(Projection, LineProductsHaveTheBitsOfOneSumEach) {
  for (int round = 0; round < test::rounds(200); ++round) {
    const int lines = whole(0, 300);
    const std::size_t rows = 50;
    const auto cols = static_cast<std::size_t>(whole(1, 20));
    const Matrix m = matrix(lines, 50, 60);
    const Values a = values(rows * cols);
    Values got(cols * static_cast<std::size_t>(lines), 1e300);
    Values wanted = got;
    projectLines(got.data(), baseOf(a, {}, rows, cols), m.lines(), static_cast<std::size_t>(lines));
    for (std::size_t i = 0; i < static_cast<std::size_t>(lines); ++i) {
      for (std::size_t j = 0; j < cols; ++j) {
        const int k = m.jc[i];
        wanted[j + i * cols] = test::statedSum(m.jc[i + 1] - k, m.pr.data() + k, m.ir.data() + k, a.data() + j * rows);
      }
    }
    ASSERT_TRUE(sameBits(got, wanted)) << "round " << round;
  }
}

// G = [2 0; 1 3] by lines: line 0 . v = 2 v0, line 1 . v = v0 + 3 v1.
struct TwoLines {
  const double pr[3] = {2.0, 1.0, 3.0};
  const int ir[3] = {0, 0, 1};
  const int jc[3] = {0, 1, 3};
  const double r1[2] = {1.0, 2.0};
  const double i1[2] = {-1.0, 5.0};
  const double r2[2] = {3.0, -4.0};
  const double i2[2] = {7.0, 0.5};
  double outR = 99.0;
  double outI = 99.0;
  void run(bool complex1, bool complex2, bool imaginary) {
    phi1tmphi2_mkl(r1, complex1 ? i1 : nullptr, r2, complex2 ? i2 : nullptr, pr, ir, jc, 2, &outR, imaginary ? &outI : nullptr);
  }
};
// g(r1) = [2 7], g(i1) = [-2 14].

TEST(BilinearForm, IsNotConjugated) {
  TwoLines t;
  t.run(true, true, true);
  EXPECT_EQ(t.outR, (2.0 * 3 - 7 * 4) - (-2.0 * 7 + 14 * 0.5));
  EXPECT_EQ(t.outI, (2.0 * 7 + 7 * 0.5) + (-2.0 * 3 - 14 * 4));
}

TEST(BilinearForm, OfARealAndAComplexVectorHasTheCrossTermsOnly) {
  TwoLines t;
  t.run(false, true, true);
  EXPECT_EQ(t.outR, -22.0);
  EXPECT_EQ(t.outI, 17.5);
  t.run(true, false, true);
  EXPECT_EQ(t.outR, -22.0);
  EXPECT_EQ(t.outI, -62.0);
}

TEST(BilinearForm, IgnoresImaginaryPartsWithoutAPlaceForThem) {
  TwoLines t;
  t.run(true, true, false);
  EXPECT_EQ(t.outR, -22.0);
  EXPECT_EQ(t.outI, 99.0);
}

TEST(BilinearForm, OfNoLinesIsZeroWhateverThePlacesHeld) {
  TwoLines t;
  phi1tmphi2_mkl(t.r1, t.i1, t.r2, t.i2, t.pr, t.ir, t.jc, 0, &t.outR, &t.outI);
  EXPECT_EQ(t.outR, 0.0);
  EXPECT_EQ(t.outI, 0.0);
}

}  // namespace
}  // namespace quarn
