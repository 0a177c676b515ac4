// Whole steps of modes on which only loads and diagonal forces act. A few modes at a time go through all steps in the registers of the
// processor, since modes do not act on each other.
#pragma once

#include <cstddef>

#include "integration/newmark_fused.h"

namespace quarn {

/// Loads and outputs of successive steps.
struct StepsOfModes {
  const double* loads;  ///< of step j: nb values from loads[j * stride] on
  int stride;
  int nb;
  int count;
  double* const* saves;  ///< count places; what u is after step j goes there, nowhere where it is null. Apart from everything else
};

/// The state after these steps (in-out), with the bits of newmarkPredict, newmarkLoad, the diagonal forces and newmarkCorrect in each. r
/// holds nb columns of x.n values.
void newmarkSteps(const ModalState& x, const double* r, const double* gain, const StepsOfModes& steps, const DiagonalForces& forces,
                  const NewmarkCoefficients& k);

}  // namespace quarn
