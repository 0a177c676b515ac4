#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "integration/motion_energies.h"
#include "random_matrix.h"

namespace quarn {
namespace {

using Vector = std::vector<double>;
using test::randomVector;

struct Motion {
  Motion(std::size_t modes, std::size_t steps, std::size_t loadCount, std::size_t elementCount)
      : n(modes), columns(steps), loads(loadCount), elements(elementCount) {}
  Vector random(std::size_t rows, std::size_t cols, unsigned seed) const { return randomVector(static_cast<int>(rows * cols), seed); }
  ModesInMotion modes() const { return {n, k.data(), c.data(), 0.25, 0.625, v0.data(), a0.data()}; }
  void run(double* v, double* a) {
    energies.assign(4 * columns, -1.0);
    Vector work(motionEnergiesWork(n, loads, elements));
    motionEnergies(modes(), q.data(), columns, {loads, s.data(), l.data()}, {elements, b.data(), f.data()}, {energies.data(), v, a},
                   work.data());
  }
  /// Load of mode i at column j, and with the elements.
  double load(std::size_t i, std::size_t j) const {
    volatile double sum = 0.0;
    for (std::size_t p = 0; p < loads; ++p) sum = sum + s[i + p * n] * l[p + j * loads];
    return sum;
  }
  double force(std::size_t i, std::size_t j) const {
    volatile double sum = load(i, j);
    for (std::size_t p = 0; p < elements; ++p) sum = sum + b[i + p * n] * f[p + j * elements];
    return sum;
  }

  std::size_t n, columns, loads, elements;
  Vector k = random(n, 1, 1), c = random(n, 1, 2), v0 = random(n, 1, 3), a0 = random(n, 1, 4), q = random(n, columns, 5);
  Vector s = random(n, loads, 6), l = random(loads, columns, 7), b = random(n, elements, 8), f = random(elements, columns, 9);
  Vector energies;
};

TEST(MotionEnergies, RatesHaveTheBitsOfTheRecurrenceOfOneModeAtEverySize) {
  for (const std::size_t n : {1, 2, 7, 8, 9, 16, 17, 41}) {
    Motion m(n, 19, n % 4, n % 3);
    Vector v(n * 19), a(n * 19);
    m.run(v.data(), a.data());
    for (std::size_t i = 0; i < n; ++i) {
      const volatile double implicit = 1.0 / (1.0 + 0.25 * 0.625 * m.c[i]);
      const volatile double keeps = implicit * (1.0 - 0.25 * 0.375 * m.c[i]);
      const volatile double early = 0.25 * 0.375 * implicit;
      const volatile double late = 0.25 * 0.625 * implicit;
      double now = m.v0[i];
      volatile double damped = m.c[i] * now;
      double g = m.a0[i] + damped;
      for (std::size_t j = 0; j < 19; ++j) {
        if (j > 0) {
          const volatile double pull = m.k[i] * m.q[i + j * n];
          const double next = m.force(i, j) - pull;
          const volatile double before = early * g;
          const volatile double kept = keeps * now;
          const volatile double added = late * next;
          now = added + (before + kept);
          g = next;
        }
        damped = m.c[i] * now;
        EXPECT_EQ(v[i + j * n], now) << n << " modes, mode " << i << ", column " << j;
        EXPECT_EQ(a[i + j * n], g - damped) << n << " modes, mode " << i << ", column " << j;
      }
    }
  }
}

TEST(MotionEnergies, AreSumsOverModesOfWhatTheRatesSay) {
  for (const std::size_t n : {1, 5, 8, 23}) {
    Motion m(n, 17, 2, 3);
    Vector v(n * 17), a(n * 17);
    m.run(v.data(), a.data());
    const Vector kept = m.energies;
    double damped = 0.0;
    double work = 0.0;
    double largest = 1.0;
    for (std::size_t j = 0; j < 17; ++j) {
      double kinetic = 0.0;
      double strain = 0.0;
      for (std::size_t i = 0; i < n; ++i) {
        const std::size_t at = i + j * n;
        kinetic += v[at] * v[at] / 2.0;
        strain += m.k[i] * m.q[at] * m.q[at] / 2.0;
        if (j == 0) continue;
        const double moved = m.q[at] - m.q[at - n];
        damped += m.c[i] * (v[at - n] + v[at]) / 2.0 * moved;
        work += (m.load(i, j - 1) + m.load(i, j)) / 2.0 * moved;
      }
      const double wanted[] = {kinetic, strain, damped, work};
      for (const double x : wanted) largest = std::max(largest, std::abs(x));
      for (std::size_t e = 0; e < 4; ++e)
        EXPECT_NEAR(kept[e + 4 * j], wanted[e], 1e-14 * static_cast<double>(n) * largest) << n << ", " << j;
    }
    m.run(nullptr, nullptr);
    EXPECT_EQ(m.energies, kept);
    m.run(v.data(), nullptr);
    EXPECT_EQ(m.energies, kept);
  }
}

TEST(MotionEnergies, WithoutModesAndWithoutColumns) {
  Motion none(0, 3, 2, 1);
  none.run(nullptr, nullptr);
  EXPECT_EQ(none.energies, Vector(12, 0.0));
  Motion still(3, 0, 2, 1);
  still.run(nullptr, nullptr);
  EXPECT_TRUE(still.energies.empty());
}

}  // namespace
}  // namespace quarn
