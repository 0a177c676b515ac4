#include "integration/newmark_fused.h"

#include <algorithm>
#include <cstddef>

#include "numbers/processor.h"

// Copies stay in the pass over the modes that they are part of: as calls of memcpy they would be passes of their own.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC push_options
#pragma GCC optimize("no-tree-loop-distribute-patterns")
#endif

namespace quarn {

namespace {

/// Modes whose load is formed together: it stays in the first-level cache.
constexpr int kBlock = 256;

/// Modal force of one mode after its load.
template <With with>
[[gnu::always_inline]] inline double addForces(double f, double u, double v, double k, double beta, double c) {
  if constexpr (with != With::nothing) f += k * (u + beta * v);
  if constexpr (with == With::both) f += c * v;
  return f;
}

template <With with>
[[gnu::always_inline]] inline void begin(double* __restrict u, double* __restrict v, double* __restrict a, double* __restrict copyU,
                                         double* __restrict copyV, double* __restrict copyA, double* __restrict f,
                                         const double* __restrict column, double p, int n, const DiagonalForces& forces,
                                         const NewmarkCoefficients& in) {
  const NewmarkCoefficients x = in;
  const double beta = forces.beta;
  const double* k = forces.k;
  const double* c = forces.c;
  for (int i = 0; i < n; ++i) {
    const double u0 = u[i];
    const double v0 = v[i];
    const double a0 = a[i];
    copyU[i] = u0;
    copyV[i] = v0;
    copyA[i] = a0;
    const double up = (x.uFromA * a0 + x.dt * v0) + u0;
    const double vp = x.vFromA * a0 + v0;
    u[i] = up;
    v[i] = vp;
    a[i] = 0.0;
    const double load = 0.0 + column[i] * p;
    f[i] = addForces<with>(load, up, vp, with == With::nothing ? 0.0 : k[i], beta, with == With::both ? c[i] : 0.0);
  }
}

template <With with, bool saving>
[[gnu::always_inline]] inline void next(double* __restrict u, double* __restrict v, double* __restrict f, const double* __restrict gain,
                                        const double* __restrict column, double p, int n, const DiagonalForces& forces,
                                        const NewmarkCoefficients& in, double* __restrict save) {
  const NewmarkCoefficients x = in;
  const double beta = forces.beta;
  const double* __restrict k = forces.k;
  const double* __restrict c = forces.c;
  for (int i = 0; i < n; ++i) {
    const double d = f[i] * gain[i];
    const double u0 = u[i] - d;
    if constexpr (saving) save[i] = u0;
    const double v0 = v[i] - x.vFromD * d;
    const double a0 = 0.0 - d * x.aFromD;
    const double up = (x.uFromA * a0 + x.dt * v0) + u0;
    const double vp = x.vFromA * a0 + v0;
    u[i] = up;
    v[i] = vp;
    const double loaded = 0.0 + column[i] * p;
    f[i] = addForces<with>(loaded, up, vp, with == With::nothing ? 0.0 : k[i], beta, with == With::both ? c[i] : 0.0);
  }
}

#define QUARN_NEWMARK_VARIANT(name, with)                                                                                           \
  QUARN_PROCESSOR_VERSIONS                                                                                                          \
  void begin##name(const ModalState& s, double* cu, double* cv, double* ca, double* f, const double* column, double p,              \
                   const DiagonalForces& forces, const NewmarkCoefficients& k) {                                                    \
    begin<with>(s.u, s.v, s.a, cu, cv, ca, f, column, p, s.n, forces, k);                                                           \
  }                                                                                                                                 \
  QUARN_PROCESSOR_VERSIONS                                                                                                          \
  void next##name(const ModalState& s, double* f, const double* gain, const double* column, double p, const DiagonalForces& forces, \
                  const NewmarkCoefficients& k, double* save) {                                                                     \
    if (save) return next<with, true>(s.u, s.v, f, gain, column, p, s.n, forces, k, save);                                          \
    next<with, false>(s.u, s.v, f, gain, column, p, s.n, forces, k, nullptr);                                                       \
  }
QUARN_NEWMARK_VARIANT(Free, With::nothing)
QUARN_NEWMARK_VARIANT(Elastic, With::stiffness)
QUARN_NEWMARK_VARIANT(Damped, With::both)
#undef QUARN_NEWMARK_VARIANT

/// part (state, first mode, load column, its factor, forces) with all modes at once where there is one load; with several, with blocks of
/// modes whose load is formed first.
template <class Part>
[[gnu::always_inline]] inline void forLoadedBlocks(const ModalState& x, const double* r, const double* loads, int nb,
                                                   const DiagonalForces& forces, Part part) {
  if (nb == 1) {
    part(x, 0, r, loads[0], forces);
    return;
  }
  double load[kBlock];
  for (int first = 0; first < x.n; first += kBlock) {
    const int n = std::min(kBlock, x.n - first);
    newmarkLoad(load, r + first, x.n, loads, n, nb);
    part({x.u + first, x.v + first, x.a + first, n}, first, load, 1.0,
         {forces.k ? forces.k + first : nullptr, forces.beta, forces.c ? forces.c + first : nullptr});
  }
}

}  // namespace

void newmarkBegin(const ModalState& x, double* copyU, double* copyV, double* copyA, double* f, const double* r, const double* loads, int nb,
                  const DiagonalForces& forces, const NewmarkCoefficients& k) {
  const auto variant = forces.c ? beginDamped : forces.k ? beginElastic : beginFree;
  forLoadedBlocks(x, r, loads, nb, forces, [&](const ModalState& s, int at, const double* column, double p, const DiagonalForces& part) {
    variant(s, copyU + at, copyV + at, copyA + at, f + at, column, p, part, k);
  });
}

void newmarkNext(const ModalState& x, double* f, const double* gain, const double* r, const double* loads, int nb,
                 const DiagonalForces& forces, const NewmarkCoefficients& k, double* save) {
  const auto variant = forces.c ? nextDamped : forces.k ? nextElastic : nextFree;
  forLoadedBlocks(x, r, loads, nb, forces, [&](const ModalState& s, int at, const double* column, double p, const DiagonalForces& part) {
    variant(s, f + at, gain + at, column, p, part, k, save ? save + at : nullptr);
  });
}

}  // namespace quarn

#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC pop_options
#endif
