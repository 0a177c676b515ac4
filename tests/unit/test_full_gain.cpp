#include <gtest/gtest.h>

#include "integration/full_gain.h"
#include "newmark_coefficients.h"
#include "random_matrix.h"

namespace quarn {
namespace {

using test::coefficients;
using test::randomVector;

TEST(FullGain, CorrectionHasTheBitsOfSumsInColumnOrderAtEverySize) {
  for (const int n : {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 33, 64, 100, 255, 256, 257, 300, 520}) {
    auto u = randomVector(n, 1);
    auto v = randomVector(n, 2);
    auto a = randomVector(n, 3);
    const auto f = randomVector(n, 4);
    const auto gain = randomVector(n * n, 5);
    auto wantedU = u;
    auto wantedV = v;
    auto wantedA = a;
    for (std::size_t i = 0; i < u.size(); ++i) {
      volatile double d = 0.0;
      for (std::size_t j = 0; j < u.size(); ++j) {
        volatile double term = gain[i + j * u.size()] * f[j];
        d = d + term;
      }
      wantedU[i] -= d;
      volatile double dv = coefficients.vFromD * d;
      wantedV[i] -= dv;
      volatile double da = d * coefficients.aFromD;
      wantedA[i] -= da;
    }
    newmarkCorrectFull(u.data(), v.data(), a.data(), f.data(), gain.data(), n, coefficients);
    EXPECT_EQ(u, wantedU) << n;
    EXPECT_EQ(v, wantedV) << n;
    EXPECT_EQ(a, wantedA) << n;
  }
}

TEST(FullGain, BetweenTwoPagesItIsOneSumOverBoth) {
  for (const int n : {1, 3, 8, 33, 257}) {
    const auto pages = randomVector(2 * n * n, 5);
    const auto f = randomVector(n, 4);
    auto u = randomVector(n, 1);
    auto v = randomVector(n, 2);
    auto a = randomVector(n, 3);
    auto wantedU = u;
    auto wantedV = v;
    auto wantedA = a;
    const double weight = 0.3;
    for (std::size_t i = 0; i < u.size(); ++i) {
      volatile double d = 0.0;
      for (std::size_t j = 0; j < 2 * u.size(); ++j) {
        volatile double part = j < u.size() ? (1.0 - weight) * f[j] : weight * f[j - u.size()];
        volatile double term = pages[i + j * u.size()] * part;
        d = d + term;
      }
      wantedU[i] -= d;
      volatile double dv = coefficients.vFromD * d;
      wantedV[i] -= dv;
      volatile double da = d * coefficients.aFromD;
      wantedA[i] -= da;
    }
    std::vector<double> work(2 * u.size());
    newmarkCorrectBetween(u.data(), v.data(), a.data(), f.data(), pages.data(), weight, work.data(), n, coefficients);
    EXPECT_EQ(u, wantedU) << n;
    EXPECT_EQ(v, wantedV) << n;
    EXPECT_EQ(a, wantedA) << n;
  }
}

TEST(FullGain, ADiagonalOneGivesTheBitsOfTheColumn) {
  const int n = 37;
  const auto f = randomVector(n, 4);
  const auto column = randomVector(n, 5);
  std::vector<double> gain(static_cast<std::size_t>(n) * n);
  for (std::size_t i = 0; i < column.size(); ++i) gain[i * (column.size() + 1)] = column[i];
  auto u = randomVector(n, 1);
  auto v = randomVector(n, 2);
  auto a = randomVector(n, 3);
  auto wantedU = u;
  auto wantedV = v;
  auto wantedA = a;
  newmarkCorrect(wantedU.data(), wantedV.data(), wantedA.data(), f.data(), column.data(), n, coefficients);
  newmarkCorrectFull(u.data(), v.data(), a.data(), f.data(), gain.data(), n, coefficients);
  EXPECT_EQ(u, wantedU);
  EXPECT_EQ(v, wantedV);
  EXPECT_EQ(a, wantedA);
}

}  // namespace
}  // namespace quarn
