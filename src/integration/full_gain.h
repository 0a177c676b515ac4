// A gain that is a matrix: the correction of a model whose modes are coupled by its linear terms.
//
// With the gain inv (M/(beta dt^2) + gamma C/(beta dt) + K) and full C and K of any symmetry, a linear model gets Newmark's scheme
// whole: gyroscopic matrices, dashpots between masses and cross-coupled bearings are implicit like the diagonal terms.
//
// Where C or K change with time, so does the gain: it has pages at given times and is linear in between.
#pragma once

#include "integration/newmark_kernels.h"

namespace quarn {

/// Correction: d = gain*f, u -= d, v -= vFromD*d, a -= d*aFromD. gain holds n columns of n values. d(i) is the sum of gain(i,j)*f(j) for
/// ascending j, from 0 on, every product rounded, then every sum. f may not overlap the others.
void newmarkCorrectFull(double* u, double* v, double* a, const double* f, const double* gain, int n, const NewmarkCoefficients& k);

/// The same with a gain between two pages, the second after the first: d = page0*((1 - weight)*f) + page1*(weight*f), one sum in that
/// order. work: 2*n values (out), apart from all others.
void newmarkCorrectBetween(double* u, double* v, double* a, const double* f, const double* pages, double weight, double* work, int n,
                           const NewmarkCoefficients& k);

}  // namespace quarn
