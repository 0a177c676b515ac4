#include <gtest/gtest.h>

#include "integration/newmark_kernels.h"
#include "newmark_coefficients.h"
#include "random_matrix.h"

namespace quarn {
namespace {

using test::coefficients;
using test::randomVector;

TEST(NewmarkKernels, PredictorHasTheBitsOfThePlainFormulaAtEverySize) {
  for (int n = 0; n < 70; ++n) {
    auto u = randomVector(n, 1);
    auto v = randomVector(n, 2);
    auto a = randomVector(n, 3);
    auto wantedU = u;
    auto wantedV = v;
    for (std::size_t i = 0; i < u.size(); ++i) {
      volatile double fromA = coefficients.uFromA * a[i];
      volatile double fromV = coefficients.dt * v[i];
      volatile double sum = fromA + fromV;
      wantedU[i] = sum + u[i];
      volatile double rate = coefficients.vFromA * a[i];
      wantedV[i] = rate + v[i];
    }
    newmarkPredict(u.data(), v.data(), a.data(), n, coefficients);
    EXPECT_EQ(u, wantedU);
    EXPECT_EQ(v, wantedV);
    EXPECT_EQ(a, std::vector<double>(static_cast<std::size_t>(n)));
  }
}

TEST(NewmarkKernels, LoadSumsTheColumnsInOrder) {
  for (int n = 0; n < 40; ++n) {
    for (int nb = 0; nb < 4; ++nb) {
      const auto r = randomVector(n * nb, 4);
      const auto load = randomVector(nb, 5);
      std::vector<double> wanted(static_cast<std::size_t>(n));
      for (std::size_t i = 0; i < wanted.size(); ++i) {
        for (std::size_t c = 0; c < load.size(); ++c) {
          volatile double term = r[i + c * wanted.size()] * load[c];
          wanted[i] += term;
        }
      }
      std::vector<double> f(static_cast<std::size_t>(n), 9.0);
      newmarkLoad(f.data(), r.data(), n, load.data(), n, nb);
      EXPECT_EQ(f, wanted);
    }
  }
}

TEST(NewmarkKernels, CorrectionHasTheBitsOfThePlainFormulaAtEverySize) {
  for (int n = 0; n < 70; ++n) {
    auto u = randomVector(n, 1);
    auto v = randomVector(n, 2);
    auto a = randomVector(n, 3);
    const auto f = randomVector(n, 4);
    const auto gain = randomVector(n, 5);
    auto wantedU = u;
    auto wantedV = v;
    auto wantedA = a;
    for (std::size_t i = 0; i < u.size(); ++i) {
      volatile double d = f[i] * gain[i];
      wantedU[i] -= d;
      volatile double dv = coefficients.vFromD * d;
      wantedV[i] -= dv;
      volatile double da = d * coefficients.aFromD;
      wantedA[i] -= da;
    }
    newmarkCorrect(u.data(), v.data(), a.data(), f.data(), gain.data(), n, coefficients);
    EXPECT_EQ(u, wantedU);
    EXPECT_EQ(v, wantedV);
    EXPECT_EQ(a, wantedA);
  }
}

}  // namespace
}  // namespace quarn
