// Sparse level 1 for builds without MKL.
#include "sparse/blas.h"

#ifndef QUARN_WITH_MKL

double cblas_ddoti(int n, const double* x, const int* indx, const double* y) {
  double sum = 0.0;
  for (int k = 0; k < n; ++k) sum += x[k] * y[indx[k]];
  return sum;
}

void cblas_daxpyi(int n, double alpha, const double* x, const int* indx, double* y) {
  if (alpha == 0.0) return;
  for (int k = 0; k < n; ++k) y[indx[k]] += alpha * x[k];
}

#endif
