#include "integration/motion_energies.h"

#include <algorithm>
#include <cstring>

#include "integration/modal_forces.h"
#include "numbers/processor.h"
#include "numbers/vectors.h"

namespace quarn {

namespace {

/// Modes side by side, and partial sums of each energy.
constexpr std::size_t kLanes = 8;
enum Energy { kinetic, strain, damped, worked, kEnergies };

/// One value a mode, filled up with zeros to whole lanes; what stays, then what each column changes.
struct Motion {
  std::size_t n;  ///< a multiple of the lanes
  double *stiffness, *damping, *keeps, *early, *late;
  double *next, *q, *v, *g, *load;  ///< next: displacements of the column to come; load: what the loads were before
  double *loads, *forces;           ///< of kForceColumns columns: the loads, and they with the elements
  double *alongLoads, *alongElements;
};

std::size_t filledUp(std::size_t n) { return (n + kLanes - 1) / kLanes * kLanes; }

double* spread(double* to, std::size_t stride, const double* from, std::size_t n, std::size_t columns) {
  for (std::size_t j = 0; j < columns; ++j) std::copy_n(from + j * n, n, to + j * stride);
  return to + columns * stride;
}

Motion laidOut(const ModesInMotion& m, const ModalForces& loads, const ModalForces& elements, double* work) {
  const std::size_t n = filledUp(m.n);
  Motion x{};
  x.n = n;
  for (double** place : {&x.stiffness, &x.damping, &x.keeps, &x.early, &x.late, &x.next, &x.q, &x.v, &x.g, &x.load}) {
    *place = work;
    work += n;
  }
  x.loads = work;
  x.forces = x.loads + kForceColumns * n;
  x.alongLoads = x.forces + kForceColumns * n;
  x.alongElements = spread(x.alongLoads, n, loads.directions, m.n, loads.count);
  spread(x.alongElements, n, elements.directions, m.n, elements.count);
  std::copy_n(m.stiffness, m.n, x.stiffness);
  std::copy_n(m.damping, m.n, x.damping);
  for (std::size_t i = 0; i < m.n; ++i) {
    const double implicit = 1.0 / (1.0 + m.step * m.gamma * m.damping[i]);
    x.keeps[i] = implicit * (1.0 - m.step * (1.0 - m.gamma) * m.damping[i]);
    x.early[i] = m.step * (1.0 - m.gamma) * implicit;
    x.late[i] = m.step * m.gamma * implicit;
  }
  return x;
}

/// The next column of a vector of modes from i on, and what that adds to its sums.
template <class Vector>
[[gnu::always_inline]] inline void advanceFew(const Motion& x, std::size_t i, std::size_t column, Vector* sums, std::size_t stride) {
  Vector stiffness, damping, keeps, early, late, q, qBefore, vBefore, gBefore, loadsBefore, loads, forces;
  load(stiffness, x.stiffness + i);
  load(damping, x.damping + i);
  load(keeps, x.keeps + i);
  load(early, x.early + i);
  load(late, x.late + i);
  load(q, x.next + i);
  load(qBefore, x.q + i);
  load(vBefore, x.v + i);
  load(gBefore, x.g + i);
  load(loadsBefore, x.load + i);
  load(loads, x.loads + column * x.n + i);
  load(forces, x.forces + column * x.n + i);
  const Vector moved = q - qBefore;
  const Vector pull = stiffness * q;
  const Vector g = forces - pull;
  const Vector v = late * g + (early * gBefore + keeps * vBefore);
  sums[kinetic * stride] += v * v;
  sums[strain * stride] += pull * q;
  sums[damped * stride] += damping * (vBefore + v) * moved;
  sums[worked * stride] += (loadsBefore + loads) * moved;
  std::memcpy(x.q + i, &q, sizeof q);
  std::memcpy(x.v + i, &v, sizeof v);
  std::memcpy(x.g + i, &g, sizeof g);
  std::memcpy(x.load + i, &loads, sizeof loads);
}

/// The state at the next column, number column of those whose forces are formed, and what came about on the way there: sums over the modes,
/// twice the energies.
template <class Vector>
[[gnu::always_inline]] inline void advanceAll(const Motion& x, std::size_t column, double* sums) {
  constexpr std::size_t length = sizeof(Vector) / sizeof(double);
  constexpr std::size_t parts = kLanes / length;
  Vector partial[kEnergies * parts] = {};
  for (std::size_t i = 0; i < x.n; i += kLanes) {
    for (std::size_t p = 0; p < parts; ++p) advanceFew(x, i + p * length, column, partial + p, parts);
  }
  for (std::size_t e = 0; e < kEnergies; ++e) {
    double lanes[kLanes];
    std::memcpy(lanes, partial + e * parts, sizeof lanes);
    sumOfEight(sums[e], lanes);
  }
}

// NOLINTBEGIN(bugprone-macro-parentheses): attributes and types take none
#define QUARN_ADVANCE(version, Vector) \
  version void advance(const Motion& x, std::size_t column, double* sums) { advanceAll<Vector>(x, column, sums); }
// NOLINTEND(bugprone-macro-parentheses)
#ifdef QUARN_VERSION_BASE
QUARN_ADVANCE(QUARN_VERSION_BASE, Doubles2)
QUARN_ADVANCE(QUARN_VERSION_V3, Doubles4)
QUARN_ADVANCE(QUARN_VERSION_V4, Doubles8)
#elif defined(__AVX512F__)
QUARN_ADVANCE(, Doubles8)
#elif defined(__AVX__)
QUARN_ADVANCE(, Doubles4)
#else
QUARN_ADVANCE(, Doubles2)
#endif
#undef QUARN_ADVANCE

/// The forces of columns from number first on. Where there is no mode they stay zero, also beside a value that is not finite.
void formForces(const Motion& x, std::size_t modes, const ModalForces& loads, const ModalForces& elements, std::size_t first,
                std::size_t columns) {
  modalForces(x.loads, nullptr, x.n, x.alongLoads, loads.count, loads.values + first * loads.count, columns);
  modalForces(x.forces, x.loads, x.n, x.alongElements, elements.count, elements.values + first * elements.count, columns);
  for (std::size_t j = 0; j < columns; ++j) {
    for (std::size_t i = modes; i < x.n; ++i) x.loads[j * x.n + i] = x.forces[j * x.n + i] = 0.0;
  }
}

/// The state at the first column, from what is given there.
void begin(const Motion& x, const ModesInMotion& m, double* sums) {
  std::copy_n(m.v0, m.n, x.v);
  std::copy_n(x.next, m.n, x.q);
  std::copy_n(x.loads, m.n, x.load);
  double kin[kLanes] = {};
  double str[kLanes] = {};
  for (std::size_t i = 0; i < m.n; ++i) {
    x.g[i] = m.a0[i] + x.damping[i] * x.v[i];
    kin[i % kLanes] += x.v[i] * x.v[i];
    str[i % kLanes] += x.stiffness[i] * x.q[i] * x.q[i];
  }
  sumOfEight(sums[kinetic], kin);
  sumOfEight(sums[strain], str);
  sums[damped] = sums[worked] = 0.0;
}

}  // namespace

std::size_t motionEnergiesWork(std::size_t n, std::size_t loads, std::size_t elements) {
  return filledUp(n) * (10 + 2 * kForceColumns + loads + elements);
}

void motionEnergies(const ModesInMotion& modes, const double* q, std::size_t columns, const ModalForces& loads, const ModalForces& elements,
                    const MotionOut& out, double* work) {
  const Motion x = laidOut(modes, loads, elements, work);
  double since[kEnergies] = {};
  for (std::size_t j = 0; j < columns; ++j) {
    if (j % kForceColumns == 0) formForces(x, modes.n, loads, elements, j, std::min(kForceColumns, columns - j));
    std::copy_n(q + j * modes.n, modes.n, x.next);
    double sums[kEnergies];
    if (j == 0) {
      begin(x, modes, sums);
    } else {
      advance(x, j % kForceColumns, sums);
    }
    double* e = out.energies + j * kEnergies;
    e[kinetic] = sums[kinetic] / 2.0;
    e[strain] = sums[strain] / 2.0;
    e[damped] = since[damped] += sums[damped] / 2.0;
    e[worked] = since[worked] += sums[worked] / 2.0;
    if (out.velocities) std::copy_n(x.v, modes.n, out.velocities + j * modes.n);
    if (!out.accelerations) continue;
    double* a = out.accelerations + j * modes.n;
    for (std::size_t i = 0; i < modes.n; ++i) a[i] = x.g[i] - x.damping[i] * x.v[i];
  }
}

}  // namespace quarn
