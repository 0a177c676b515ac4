#include "integration/korv_residual.h"

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "integration/sparse_handles.h"
#include "sparse/blas.h"
#include "sparse/line_checks.h"
#include "sparse/sp_tbb.h"

namespace quarn {

namespace {

const char* nameOf(int code) { return code == -2 ? "the mass matrix" : code == -3 ? "the damping matrix" : "the stiffness matrix"; }

/// A struct without values that has modes: "pr" absent or empty, "def" there.
bool isModalDamping(const mxArray* C) { return host::field(C, "def") && host::count(host::field(C, "pr")) == 0; }

}  // namespace

KorvTerm::KorvTerm(int code, const ROr& context, const mxArray* K, host::Doubles residual) : c(context), r(residual), name(nameOf(code)) {
  const Factor u{c.u, c.uLen, "u"};
  const Factor v{c.v, c.vLen, "v"};
  const Factor a{c.a, c.aLen, "a"};
  switch (code) {
    case -2:
      rayleigh = c.alpha;
      if (c.a || rayleigh != 0.0) readMatrix(host::matrixCell(K, 0), a);
      return;
    case -3: {
      if (!c.v) return;
      const mxArray* C = host::matrixCell(K, 1);
      if (isModalDamping(C)) {
        readModalDamping(C, v);
      } else {
        readMatrix(C, v);
      }
      return;
    }
    case -1:
      rayleigh = c.beta;
      readMatrix(host::matrixCell(K, 2), u);
      return;
    default:
      mexPrintf("Type %i", code);
      host::fail(fixed::unknownTerm);
  }
}

void KorvTerm::readMatrix(const mxArray* a, Factor of) {
  matrix = sparseView(a, name);
  if (of.data && !matrix.ir && matrix.pr) host::fail(fixed::sparseOnly);
  if (!matrix.ir || !matrix.pr || c.N <= 0) {
    matrix = {};
    return;
  }
  checkLinePointers(matrix, c.N, name);
  checkLength(r.count, c.N, "r", "one for each row of u");
  if (of.data) checkLength(of.count, c.N, of.name, "one for each row of u");
  product = of;
  if (rayleigh != 0.0) checkGather(largestIndex(matrix, c.N, name), c.vLen, name, "v");
}

void KorvTerm::readModalDamping(const mxArray* C, Factor v) {
  const mxArray* def = host::field(C, "def");
  modes = host::doubles(def, "field \"def\" of the damping");
  coefficients = host::realDoubles(host::field(C, "data"), "field \"data\" of the damping");
  n = host::rows(def);
  m = host::cols(def);
  checkLength(coefficients.count, 2LL * m, "field \"data\" of the damping", "twice the number of modes");
  checkLength(v.count, n, "v", "one for each row of \"def\"");
  checkLength(r.count, n, "r", "one for each row of \"def\"");
  name = "field \"K\" of the damping";
  readMatrix(host::field(C, "K"), v);
}

void KorvTerm::add() const {
  if (modes) addModalDamping();
  if (!matrix.pr) return;
  if (product.data) addProduct();
  if (rayleigh != 0.0) addScaledLines(matrix, c.v, rayleigh, c.N, r.data);
}

void KorvTerm::addModalDamping() const {
  double* w = coefficients.data + m;
  cblas_dgemv(CblasColMajor, CblasTrans, n, m, 1.0, modes.data, n, c.v, 1, 0.0, w, 1);
  for (int i = 0; i < m; ++i) w[i] *= coefficients.data[i];
  cblas_dgemv(CblasColMajor, CblasNoTrans, n, m, 1.0, modes.data, n, w, 1, 1.0, r.data, 1);
}

void KorvTerm::addProduct() const {
  const auto length = static_cast<unsigned>(product.count > 0xffffffffU ? 0xffffffffU : product.count);
  const int bad = SparseMatVecTested(r.data, product.data, matrix.pr, matrix.ir, matrix.jc, c.N, length);
  if (bad >= 0) {
    host::refuse("%s : an index of column %d lies outside %s of %zu values%s", name, bad + 1, product.name, product.count,
                 diagonalMarker(matrix));
  }
}

}  // namespace quarn
