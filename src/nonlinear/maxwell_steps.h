// The sub-steps of law "Maxw".
#pragma once

#include <cstddef>

#include "nonlinear/nl_inout.h"

namespace quarn {

/// The blocks of weights in "opt", as state_laws.h describes them.
struct MaxwellWeights {
  const double* Cu;
  const double* Dv;
  const double* B;
  const double* A;
  const double* E;
};

/// All sub-steps of each element, one element after the other: q values each, of which m are states. The sizes have been checked.
void advanceMaxwell(chandleNl_inout* h, const MaxwellWeights& w, std::ptrdiff_t q, std::ptrdiff_t m, std::ptrdiff_t elements,
                    std::ptrdiff_t steps, double dt);

}  // namespace quarn
