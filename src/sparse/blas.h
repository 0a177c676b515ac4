// The four BLAS routines that the kernels call.
//
// MKL has all of them. Another CBLAS has no sparse level 1: quarn then brings cblas_ddoti and cblas_daxpyi itself
// (spblas.cpp), with the same signatures, summing in index order.
#pragma once

#ifdef QUARN_WITH_MKL
#include <mkl_cblas.h>
#else
#include <cblas.h>

extern "C" {
/// Sum of x[k] * y[indx[k]], k = 0 ... n-1.
double cblas_ddoti(int n, const double* x, const int* indx, const double* y);
/// y[indx[k]] += alpha * x[k], k = 0 ... n-1.
void cblas_daxpyi(int n, double alpha, const double* x, const int* indx, double* y);
}
#endif
