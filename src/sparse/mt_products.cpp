#include "sparse/mt_products.h"

#include <algorithm>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "sparse/blas.h"
#include "sparse/dense_lines.h"
#include "sparse/line_checks.h"
#include "sparse/mt_kernels.h"

namespace quarn {

void Add_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work) {
  const int rows = dims[0];
  const int cols = dims[1];
  const bool transposed = dims[2] == 1;
  if (ir && !transposed) {
    addGathered(rows, ir, jc, pr, u, y);
  } else if (ir) {
    addScattered(rows, cols, ir, jc, pr, u, y, work);
  } else if (transposed) {
    for (int j = 0; j < cols; ++j) y[j] += pr[j] * u[0];
  } else if (rows > 0) {
    host::fail(fixed::addsSparseOnly);
  }
}

void Add_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y) {
  const bool scatters = ir && dims[2] == 1;
  double* work = scatters ? host::zeros(static_cast<std::size_t>(std::max(dims[1], 0))) : nullptr;
  Add_Mt_ub(dims, ir, jc, pr, u, y, work);
  if (work) mxFree(work);
}

void Prod_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y) {
  const int rows = dims[0];
  const int cols = dims[1];
  if (!ir && rows == 1) {
    y[0] = denseSum(cols, pr, u);
  } else if (!ir) {
    if (rows > 0) cblas_dgemv(CblasColMajor, CblasNoTrans, rows, cols, 1.0, pr, rows, u, 1, 0.0, y, 1);
  } else if (dims[2] != 1) {
    host::fail(fixed::takesTransposedOnly);
  } else {
    addGathered(rows, ir, jc, pr, u, y);
  }
}

void Add_Mt_u(const mxArray* M, host::Doubles u, host::Doubles y, const char* name) {
  const SparseView v = sparseView(M, name);
  checkAddForm(v);
  if (!v.pr) return;
  checkAdd(v, u.count, y.count, name);
  const int dims[3] = {v.rows, v.cols, v.trans};
  Add_Mt_ub(dims, v.ir, v.jc, v.pr, u.data, y.data);
}

void Prod_Mt_u(const mxArray* M, host::Doubles u, host::Doubles y, const char* name) {
  const SparseView v = sparseView(M, name);
  checkProd(v, u.count, y.count, name);
  if (!v.pr) return;
  const int dims[3] = {v.rows, v.cols, v.trans};
  Prod_Mt_ub(dims, v.ir, v.jc, v.pr, u.data, y.data);
}

void checkAddForm(const SparseView& v) {
  if (!v.sparse() && v.trans != 1 && v.rows > 0) host::fail(fixed::addsSparseOnly);
}

void checkProdForm(const SparseView& v) {
  if (v.sparse() && v.trans != 1) host::fail(fixed::takesTransposedOnly);
}

void checkAdd(const SparseView& v, std::size_t uLen, std::size_t yLen, const char* name) {
  if (!v.pr) return;  // a matrix without entries adds nothing
  if (v.sparse() && v.trans == 1) {
    checkLines(v, v.rows, static_cast<std::size_t>(std::max(v.cols, 0)), name, "its own columns");
    checkLength(uLen, v.rows, "the force vector", "one for each line of the command matrix");
    checkLength(yLen, v.cols, "the residual", "one for each column of the command matrix");
  } else if (v.sparse()) {
    checkLines(v, v.rows, uLen, name, "the force vector");
    checkLength(yLen, v.rows, "the residual", "one for each line of the command matrix");
  } else if (v.trans == 1 && v.cols > 0) {
    checkLength(v.prLen, v.cols, name, "one for each column");
    checkLength(uLen, 1, "the force vector", "the one that a full row uses");
    checkLength(yLen, v.cols, "the residual", "one for each column of the command matrix");
  }
}

void checkProd(const SparseView& v, std::size_t uLen, std::size_t yLen, const char* name) {
  checkProdForm(v);
  if (!v.pr) return;
  if (v.sparse()) {
    checkLines(v, v.rows, uLen, name, "the observed vector");
  } else {
    checkDense(v, name);
    if (v.rows > 0) checkLength(uLen, v.cols, "the observed vector", "one for each column of the observation matrix");
  }
  checkLength(yLen, v.rows, "the observation", "one for each row of the observation matrix");
}

}  // namespace quarn
