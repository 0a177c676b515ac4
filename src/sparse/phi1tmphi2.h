// Complex bilinear form of a sparse matrix and two vectors.
#pragma once

namespace quarn {

/// outR + j outI = (r2 + j i2)' G (r1 + j i1), not conjugated, where G applies the first n lines of a matrix: with
/// g(v)[i] = line i . v = sum of pr[k] * v[ir[k]], k = jc[i] ... jc[i+1]-1 (one lineSum), term by term and in this order
///   outR  = sum of g(r1)[i] * r2[i]
///   outR -= sum of g(i1)[i] * i2[i]     if i1 and i2 are given and outI is not null
///   outI  = sum of g(r1)[i] * i2[i]     if i2 is given
///   outI += sum of g(i1)[i] * r2[i]     if i1 is given
/// r1, i1: vectors as long as the largest index needs. r2, i2: n values. i1, i2: null for a real vector. outR, outI: one value
/// each (out); with outI null the imaginary parts are not looked at. Borrows everything, trusts its arguments.
void phi1tmphi2_mkl(const double* r1, const double* i1, const double* r2, const double* i2, const double* pr, const int* ir, const int* jc,
                    int n, double* outR, double* outI);

}  // namespace quarn
