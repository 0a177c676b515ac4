#include "integration/newmark_steps.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "numbers/processor.h"
#include "numbers/vectors.h"

namespace quarn {

namespace {

template <class Vector>
constexpr std::ptrdiff_t lanes = sizeof(Vector) / sizeof(double);

/// The arrays of some modes. Load columns are ld values apart; k and c are null where no such force acts.
struct Modes {
  double* u;
  double* v;
  double* a;
  const double* r;
  std::ptrdiff_t ld;
  const double* gain;
  const double* k;
  const double* c;
};

/// Vectors vectors of modes through all steps; they are independent, and keep the processor busy together. The first rows modes are saved,
/// from row first of the place on.
template <class Vector, int Vectors, With with>
[[gnu::always_inline]] inline void stepTogether(const Modes& m, const StepsOfModes& steps, double beta, const NewmarkCoefficients& in,
                                                std::ptrdiff_t first, int rows) {
  constexpr std::ptrdiff_t wide = lanes<Vector>;
  const NewmarkCoefficients x = in;
  Vector u[Vectors];
  Vector v[Vectors];
  Vector a[Vectors];
  Vector gain[Vectors];
  Vector column[Vectors] = {};
  Vector k[Vectors] = {};
  Vector c[Vectors] = {};
  for (int b = 0; b < Vectors; ++b) {
    load(u[b], m.u + b * wide);
    load(v[b], m.v + b * wide);
    load(a[b], m.a + b * wide);
    load(gain[b], m.gain + b * wide);
    if (steps.nb == 1) load(column[b], m.r + b * wide);
    if constexpr (with != With::nothing) load(k[b], m.k + b * wide);
    if constexpr (with == With::both) load(c[b], m.c + b * wide);
  }
  const double* p = steps.loads;
  for (int j = 0; j < steps.count; ++j, p += steps.stride) {
    Vector f[Vectors] = {};
    if (steps.nb == 1) {
      for (int b = 0; b < Vectors; ++b) f[b] += column[b] * p[0];
    } else {
      for (int q = 0; q < steps.nb; ++q) {
        for (int b = 0; b < Vectors; ++b) {
          Vector part;
          load(part, m.r + q * m.ld + b * wide);
          f[b] += part * p[q];
        }
      }
    }
    for (int b = 0; b < Vectors; ++b) {
      const Vector up = (x.uFromA * a[b] + x.dt * v[b]) + u[b];
      const Vector vp = x.vFromA * a[b] + v[b];
      if constexpr (with != With::nothing) f[b] += k[b] * (up + beta * vp);
      if constexpr (with == With::both) f[b] += c[b] * vp;
      const Vector d = f[b] * gain[b];
      u[b] = up - d;
      v[b] = vp - x.vFromD * d;
      a[b] = 0.0 - d * x.aFromD;
    }
    double* to = steps.saves[j];
    if (!to) continue;
    for (int b = 0; b < Vectors; ++b) {
      if (rows >= (b + 1) * wide) {
        std::memcpy(to + first + b * wide, &u[b], sizeof(Vector));
      } else {
        const Vector some = u[b];
        std::memcpy(to + first + b * wide, &some, static_cast<std::size_t>(rows - b * wide) * sizeof(double));
      }
    }
  }
  for (int b = 0; b < Vectors; ++b) {
    std::memcpy(m.u + b * wide, &u[b], sizeof(Vector));
    std::memcpy(m.v + b * wide, &v[b], sizeof(Vector));
    std::memcpy(m.a + b * wide, &a[b], sizeof(Vector));
  }
}

/// Load columns that are kept beside modes of zeros; of more, each step forms the sum first.
constexpr int kKeptColumns = 8;

/// n modes that do not fill the last of their vectors: with modes of zeros beside them.
template <class Vector, int Vectors, With with>
[[gnu::always_inline]] inline void stepPadded(const Modes& m, int n, const StepsOfModes& steps, double beta, const NewmarkCoefficients& in,
                                              std::ptrdiff_t first) {
  constexpr std::ptrdiff_t wide = Vectors * lanes<Vector>;
  double part[6][wide] = {};
  double columns[kKeptColumns][wide] = {};
  const double* const from[] = {m.u, m.v, m.a, m.gain, m.k, m.c};
  for (int i = 0; i < 6; ++i) {
    if (from[i]) std::copy_n(from[i], n, part[i]);
  }
  const Modes padded{part[0], part[1], part[2], columns[0], wide, part[3], part[4], part[5]};
  if (steps.nb <= kKeptColumns) {
    for (int q = 0; q < steps.nb; ++q) std::copy_n(m.r + q * m.ld, n, columns[q]);
    stepTogether<Vector, Vectors, with>(padded, steps, beta, in, first, n);
  } else {
    const double one = 1.0;
    const double* p = steps.loads;
    for (int j = 0; j < steps.count; ++j, p += steps.stride) {
      newmarkLoad(columns[0], m.r, static_cast<int>(m.ld), p, n, steps.nb);
      stepTogether<Vector, Vectors, with>(padded, {&one, 0, 1, 1, steps.saves + j}, beta, in, first, n);
    }
  }
  std::copy_n(part[0], n, m.u);
  std::copy_n(part[1], n, m.v);
  std::copy_n(part[2], n, m.a);
}

/// n modes, as many as Vectors vectors hold or fewer: with as few vectors as they need.
template <class Vector, int Vectors, With with>
[[gnu::always_inline]] inline void stepLast(const Modes& m, int n, const StepsOfModes& steps, double beta, const NewmarkCoefficients& in,
                                            std::ptrdiff_t first) {
  if constexpr (Vectors > 1) {
    if (n <= (Vectors - 1) * lanes<Vector>) return stepLast<Vector, Vectors - 1, with>(m, n, steps, beta, in, first);
  }
  if (n == Vectors * lanes<Vector>) {
    stepTogether<Vector, Vectors, with>(m, steps, beta, in, first, n);
  } else {
    stepPadded<Vector, Vectors, with>(m, n, steps, beta, in, first);
  }
}

template <class Vector, With with>
[[gnu::always_inline]] inline void allModes(const Modes& m, int n, const StepsOfModes& steps, double beta, const NewmarkCoefficients& in) {
  constexpr int together = 4;
  constexpr int most = together * static_cast<int>(lanes<Vector>);
  for (int i = 0; i < n; i += most) {
    const Modes part{m.u + i, m.v + i, m.a + i, m.r + i, m.ld, m.gain + i, m.k ? m.k + i : nullptr, m.c ? m.c + i : nullptr};
    stepLast<Vector, together, with>(part, std::min(most, n - i), steps, beta, in, i);
  }
}

// NOLINTBEGIN(bugprone-macro-parentheses): attributes and types take none
#define QUARN_STEPS(version, Vector)                                                                                     \
  version void stepModes(const Modes& m, int n, const StepsOfModes& steps, double beta, const NewmarkCoefficients& in) { \
    if (m.c) return allModes<Vector, With::both>(m, n, steps, beta, in);                                                 \
    if (m.k) return allModes<Vector, With::stiffness>(m, n, steps, beta, in);                                            \
    allModes<Vector, With::nothing>(m, n, steps, beta, in);                                                              \
  }
// NOLINTEND(bugprone-macro-parentheses)
#ifdef QUARN_VERSION_BASE
QUARN_STEPS(QUARN_VERSION_BASE, Doubles2)
QUARN_STEPS(QUARN_VERSION_V3, Doubles4)
QUARN_STEPS(QUARN_VERSION_V4, Doubles8)
#elif defined(__AVX512F__)
QUARN_STEPS(, Doubles8)
#elif defined(__AVX__)
QUARN_STEPS(, Doubles4)
#else
QUARN_STEPS(, Doubles2)
#endif
#undef QUARN_STEPS

}  // namespace

void newmarkSteps(const ModalState& x, const double* r, const double* gain, const StepsOfModes& steps, const DiagonalForces& forces,
                  const NewmarkCoefficients& k) {
  stepModes({x.u, x.v, x.a, r, x.n, gain, forces.k, forces.c}, x.n, steps, forces.beta, k);
}

}  // namespace quarn
