#include "sparse/mt_kernels.h"

#include <algorithm>

#include "sparse/blas.h"
#include "sparse/dense_lines.h"

namespace quarn {

namespace {

/// u * line i into w: a cblas_daxpyi, but for full lines. A first product is rounded once, whether or not the routine fuses it with the
/// sum.
void addLine(const int* ir, const int* jc, const double* pr, int i, double u, double* w) {
  const int first = jc[i];
  const int entries = jc[i + 1] - first;
  if (entries == 1 && u != 0.0 && w[ir[first]] == 0.0) {
    w[ir[first]] = 0.0 + u * pr[first];
  } else if (isFull(entries, ir + first)) {
    if (u != 0.0) addDenseRow(entries, pr + first, u, w + ir[first]);
  } else {
    cblas_daxpyi(entries, u, pr + first, ir + first, w);
  }
}

}  // namespace

void addScattered(int rows, int cols, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work) {
  std::fill(work, work + std::max(cols, 0), 0.0);
  for (int i = 0; i < rows; ++i) addLine(ir, jc, pr, i, u[i], work);
  for (int j = 0; j < cols; ++j) y[j] += work[j];
}

void addScatteredTouched(int rows, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work) {
  for (int i = 0; i < rows; ++i) addLine(ir, jc, pr, i, u[i], work);
  for (int k = jc[0]; k < jc[rows]; ++k) {
    y[ir[k]] += work[ir[k]];
    work[ir[k]] = 0.0;
  }
}

bool singleEntries(int lines, const int* jc) {
  for (int i = 0; i < lines; ++i) {
    if (jc[i + 1] - jc[i] > 1) return false;
  }
  return true;
}

bool distinct(int n, const int* ir, double* marks) {
  bool twice = false;
  for (int k = 0; k < n; ++k) {
    twice = twice || marks[ir[k]] != 0.0;
    marks[ir[k]] = 1.0;
  }
  for (int k = 0; k < n; ++k) marks[ir[k]] = 0.0;
  return !twice;
}

}  // namespace quarn
