#include "sparse/phi1tmphi2.h"

#include "sparse/line_sums.h"

namespace quarn {

namespace {

/// start + sum of sign * (line i . v) * w[i] over the first n lines, one term after the other.
double addForm(double start, double sign, const double* v, const double* w, const double* pr, const int* ir, const int* jc, int n) {
  double sum = start;
  for (int i = 0; i < n; ++i) sum += sign * (lineSum(jc[i + 1] - jc[i], pr + jc[i], ir + jc[i], v) * w[i]);
  return sum;
}

}  // namespace

void phi1tmphi2_mkl(const double* r1, const double* i1, const double* r2, const double* i2, const double* pr, const int* ir, const int* jc,
                    int n, double* outR, double* outI) {
  *outR = addForm(0.0, 1.0, r1, r2, pr, ir, jc, n);
  if (!outI) return;
  *outI = 0.0;
  if (i1 && i2) *outR = addForm(*outR, -1.0, i1, i2, pr, ir, jc, n);
  if (i2) *outI = addForm(*outI, 1.0, r1, i2, pr, ir, jc, n);
  if (i1) *outI = addForm(*outI, 1.0, i1, r2, pr, ir, jc, n);
}

}  // namespace quarn
