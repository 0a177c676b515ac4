// Energies of a motion in modal coordinates, and the velocities and accelerations that belong to its displacements.
//
// A run keeps displacements and forces. With the modal force f of every step (loads and elements), a + C v = f - K q holds at every step,
// and Newmark's rule v' = v + h (1-gamma) a + h gamma a' (N. M. Newmark, A method of computation for structural dynamics, 1959) gives the
// velocities one after another, without differences of displacements: those of the run, to rounding.
#pragma once

#include <cstddef>

namespace quarn {

/// Modes of unit mass that only forces couple, n values each.
struct ModesInMotion {
  std::size_t n;
  const double* stiffness;  ///< squares of circular frequencies [1/s^2]
  const double* damping;    ///< [1/s]
  double step;              ///< h [s]
  double gamma;             ///< of the scheme
  const double* v0;         ///< velocities at the first column
  const double* a0;         ///< accelerations there: they stand for the forces of that column
};

/// Forces at every column along fixed directions, positive where they push the way of the direction.
struct ModalForces {
  std::size_t count;
  const double* directions;  ///< n x count
  const double* values;      ///< count x columns
};

/// What is written, each apart from everything else.
struct MotionOut {
  double* energies;       ///< 4 x columns: kinetic, strain, damped since the first column, work of the loads since then
  double* velocities;     ///< n x columns; null: nowhere
  double* accelerations;  ///< the same
};

/// Doubles of the work array.
std::size_t motionEnergiesWork(std::size_t n, std::size_t loads, std::size_t elements);

/// q: n x columns displacements. Damping and loads act along the way between two columns with the mean of what they are at both.
/// The sum over the modes: those with numbers i, i + 8, i + 16, ... from 0.0 on, then the eight sums s as
/// ((s0+s4)+(s2+s6))+((s1+s5)+(s3+s7)). work: motionEnergiesWork doubles, zeros.
void motionEnergies(const ModesInMotion& modes, const double* q, std::size_t columns, const ModalForces& loads, const ModalForces& elements,
                    const MotionOut& out, double* work);

}  // namespace quarn
