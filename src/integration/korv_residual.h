// Linear residual of a model given as matrices.
#pragma once

#include "host/arrays.h"
#include "integration/ror.h"

namespace quarn {

/// Adds one term of the linear residual to r (in-out, c.N values). K is the cell {M, C, K}; code selects the term:
///   -2  M*a + alpha*M*v   (the first part only with an acceleration)
///   -3  C*v               C a matrix, or a struct with modal damping: "def" (n x m modes), "data" (2m values: m coefficients
///                         and m places of work, which hold the damped modal velocities afterwards), optional matrix "K"
///   -1  K*u + beta*K*v
/// Raises "Implemented for sparse matrices" for a dense matrix; another code prints "Type %i" and raises "Not a supported residual".
void KorvResidual(int code, ROr c, const mxArray* K, host::Doubles r);

}  // namespace quarn
