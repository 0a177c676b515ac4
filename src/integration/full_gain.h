// A gain that is a matrix: the correction of a model whose modes are coupled by its linear terms.
//
// With the gain inv (M/(beta dt^2) + gamma C/(beta dt) + K) and full C and K of any symmetry, a linear model gets Newmark's scheme
// whole: gyroscopic matrices, dashpots between masses and cross-coupled bearings are implicit like the diagonal terms.
#pragma once

#include "integration/newmark_kernels.h"

namespace quarn {

/// Correction: d = gain*f, u -= d, v -= vFromD*d, a -= d*aFromD. gain holds n columns of n values. d(i) is the sum of gain(i,j)*f(j) for
/// ascending j, from 0 on, every product rounded, then every sum. f may not overlap the others.
void newmarkCorrectFull(double* u, double* v, double* a, const double* f, const double* gain, int n, const NewmarkCoefficients& k);

}  // namespace quarn
