// The one-pass kernels against the separate ones, bit for bit, signed zeros included.
#include <gtest/gtest.h>

#include "integration/newmark_steps.h"
#include "newmark_coefficients.h"
#include "random_matrix.h"
#include "same_bits.h"

namespace quarn {
namespace {

using test::coefficients;
using test::randomVector;
using test::sameBits;
using Vector = std::vector<double>;

/// A problem with n modes, nb loads and some zeros of both signs.
struct Problem {
  Problem(int modes, int loads)
      : n(modes),
        nb(loads),
        u(withZeros(randomVector(n, 1))),
        v(withZeros(randomVector(n, 2))),
        a(randomVector(n, 3)),
        r(withZeros(randomVector(n * nb, 4))),
        gain(randomVector(n, 5)),
        stiffness(randomVector(n, 6)),
        damping(randomVector(n, 7)),
        p(withZeros(randomVector(20 * (nb + 1), 8))) {}

  static Vector withZeros(Vector x) {
    for (std::size_t i = 0; i + 1 < x.size(); i += 5) {
      x[i] = 0.0;
      x[i + 1] = -0.0;
    }
    return x;
  }

  DiagonalForces forces(int kind) const { return {kind > 0 ? stiffness.data() : nullptr, 0.3, kind > 1 ? damping.data() : nullptr}; }

  /// Predictor, load and diagonal forces, one after the other.
  void beginSeparately(const double* loads, int kind) {
    newmarkPredict(u.data(), v.data(), a.data(), n, coefficients);
    f.assign(u.size(), 9.0);
    newmarkLoad(f.data(), r.data(), n, loads, n, nb);
    for (std::size_t i = 0; kind > 0 && i < u.size(); ++i) f[i] += stiffness[i] * (u[i] + 0.3 * v[i]);
    for (std::size_t i = 0; kind > 1 && i < u.size(); ++i) f[i] += damping[i] * v[i];
  }

  int n;
  int nb;
  Vector u;
  Vector v;
  Vector a;
  Vector r;
  Vector gain;
  Vector stiffness;
  Vector damping;
  Vector p;
  Vector f;
};

const int sizes[] = {0, 1, 2, 3, 4, 5, 7, 8, 15, 16, 17, 20, 24, 27, 33, 100, 255, 256, 257, 600};

TEST(NewmarkFused, BeginsAStepLikeTheSeparateLoops) {
  for (const int n : sizes) {
    for (int nb = 0; nb < 4; ++nb) {
      for (int kind = 0; kind < 3; ++kind) {
        Problem wanted(n, nb);
        Problem got(n, nb);
        wanted.beginSeparately(wanted.p.data(), kind);
        Vector cu(got.u.size(), 7.0);
        Vector cv(cu);
        Vector ca(cu);
        got.f.assign(got.u.size(), 9.0);
        newmarkBegin({got.u.data(), got.v.data(), got.a.data(), n}, cu.data(), cv.data(), ca.data(), got.f.data(), got.r.data(),
                     got.p.data(), nb, got.forces(kind), coefficients);
        const Problem start(n, nb);
        EXPECT_TRUE(sameBits(cu, start.u) && sameBits(cv, start.v) && sameBits(ca, start.a)) << n << ' ' << nb;
        EXPECT_TRUE(sameBits(got.u, wanted.u) && sameBits(got.v, wanted.v) && sameBits(got.a, wanted.a)) << n << ' ' << nb;
        EXPECT_TRUE(sameBits(got.f, wanted.f)) << n << ' ' << nb << ' ' << kind;
      }
    }
  }
}

/// Between two steps, forces that stand for those of elements: zeros of both signs among them.
TEST(NewmarkFused, GoesToTheNextStepLikeTheSeparateLoops) {
  for (const int n : sizes) {
    for (int nb = 0; nb < 4; ++nb) {
      for (int kind = 0; kind < 3; ++kind) {
        Problem wanted(n, nb);
        wanted.a.assign(wanted.u.size(), 0.0);
        wanted.f = Problem::withZeros(randomVector(n, 9));
        Problem got = wanted;
        const Vector untouched(got.u.size(), 0.0);
        Problem unsaved = wanted;
        Vector saved(got.u.size(), 7.0);
        newmarkCorrect(wanted.u.data(), wanted.v.data(), wanted.a.data(), wanted.f.data(), wanted.gain.data(), n, coefficients);
        const Vector corrected = wanted.u;
        wanted.beginSeparately(wanted.p.data(), kind);
        newmarkNext({got.u.data(), got.v.data(), got.a.data(), n}, got.f.data(), got.gain.data(), got.r.data(), got.p.data(), nb,
                    got.forces(kind), coefficients, saved.data());
        EXPECT_TRUE(sameBits(saved, corrected)) << n << ' ' << nb;
        newmarkNext({unsaved.u.data(), unsaved.v.data(), unsaved.a.data(), n}, unsaved.f.data(), unsaved.gain.data(), unsaved.r.data(),
                    unsaved.p.data(), nb, unsaved.forces(kind), coefficients, nullptr);
        EXPECT_TRUE(sameBits(got.u, unsaved.u) && sameBits(got.v, unsaved.v) && sameBits(got.f, unsaved.f)) << n << ' ' << nb;
        EXPECT_TRUE(sameBits(got.u, wanted.u) && sameBits(got.v, wanted.v) && sameBits(got.a, untouched)) << n << ' ' << nb;
        EXPECT_TRUE(sameBits(got.f, wanted.f)) << n << ' ' << nb << ' ' << kind;
      }
    }
  }
}

TEST(NewmarkSteps, DoWholeStepsLikeTheSeparateLoopsAndSaveWhatIsDue) {
  for (const int n : sizes) {
    for (const int nb : {0, 1, 2, 3, 8, 9}) {
      for (int kind = 0; kind < 3; ++kind) {
        Problem wanted(n, nb);
        Problem got(n, nb);
        const int stride = nb + 1;
        // One value more in each place, which is not to be touched.
        const Vector place(got.u.size() + 1, 7.0);
        std::vector<Vector> saved(9, place);
        std::vector<Vector> due(9, place);
        std::vector<double*> saves(9, nullptr);
        for (std::size_t j = 0; j < due.size(); ++j) {
          wanted.beginSeparately(wanted.p.data() + j * static_cast<std::size_t>(stride), kind);
          newmarkCorrect(wanted.u.data(), wanted.v.data(), wanted.a.data(), wanted.f.data(), wanted.gain.data(), n, coefficients);
          if (j % 3 == 1) continue;
          saves[j] = saved[j].data();
          std::copy(wanted.u.begin(), wanted.u.end(), due[j].begin());
        }
        newmarkSteps({got.u.data(), got.v.data(), got.a.data(), n}, got.r.data(), got.gain.data(),
                     {got.p.data(), stride, nb, 9, saves.data()}, got.forces(kind), coefficients);
        EXPECT_TRUE(sameBits(got.u, wanted.u)) << n << ' ' << nb << ' ' << kind;
        EXPECT_TRUE(sameBits(got.v, wanted.v)) << n << ' ' << nb << ' ' << kind;
        EXPECT_TRUE(sameBits(got.a, wanted.a)) << n << ' ' << nb << ' ' << kind;
        for (std::size_t j = 0; j < due.size(); ++j) EXPECT_TRUE(sameBits(saved[j], due[j])) << n << ' ' << nb << ' ' << kind << ' ' << j;
      }
    }
  }
}

}  // namespace
}  // namespace quarn
