// The sum of one stored line and a vector: one way for every product.
#pragma once

#include "sparse/blas.h"
#include "sparse/dense_lines.h"

namespace quarn {

/// Sum of pr[k] * x[ir[k]], k < n, begun at 0. A full line is summed as dense_lines.h says, any other one by a cblas_ddoti; a single
/// entry is not worth the call.
inline double lineSum(int n, const double* pr, const int* ir, const double* x) {
  if (n == 1) return 0.0 + pr[0] * x[ir[0]];
  if (isFull(n, ir)) return denseSum(n, pr, x + ir[0]);
  return cblas_ddoti(n, pr, ir, x);
}

}  // namespace quarn
