#include "integration/korv_residual.h"

#include "host/errors.h"
#include "integration/sparse_handles.h"
#include "sparse/blas.h"
#include "sparse/line_checks.h"
#include "sparse/sp_tbb.h"

namespace quarn {

namespace {

struct Vector {
  const double* data;
  std::size_t count;
  const char* name;
};

void refuseDense(const SparseView& m) {
  if (!m.ir && m.pr) host::fail("Implemented for sparse matrices");
}

/// r += m*x for the first N lines; the indices are tested inside the parallel loop.
void addProduct(const SparseView& m, Vector x, int N, host::Doubles r, const char* name) {
  if (!m.pr || N <= 0) return;
  checkLinePointers(m, N, name);
  checkLength(r.count, N, "r", "one for each row of u");
  checkLength(x.count, N, x.name, "one for each row of u");
  const auto xLen = static_cast<unsigned>(x.count > 0xffffffffU ? 0xffffffffU : x.count);
  const int bad = SparseMatVecTested(r.data, x.data, m.pr, m.ir, m.jc, N, xLen);
  if (bad >= 0) {
    host::refuse("%s : an index of column %d lies outside %s of %zu values%s", name, bad + 1, x.name, x.count,
                 m.ir[0] == -1 ? " (the matrix was marked as diagonal by a handle)" : "");
  }
}

void addRayleigh(const SparseView& m, Vector v, double factor, int N, host::Doubles r, const char* name) {
  if (factor == 0.0 || !m.ir || !m.pr || N <= 0) return;
  checkLength(r.count, N, "r", "one for each row of u");
  checkLines(m, N, v.count, name, v.name);
  addScaledLines(m, v.data, factor, N, r.data);
}

void addModalDamping(const mxArray* C, Vector v, int N, host::Doubles r) {
  const mxArray* def = host::field(C, "def");
  const host::Doubles modes = host::doubles(def, "field \"def\" of the damping");
  const host::Doubles data = host::doubles(host::field(C, "data"), "field \"data\" of the damping");
  const int n = host::rows(def);
  const int m = host::cols(def);
  checkLength(data.count, 2LL * m, "field \"data\" of the damping", "twice the number of modes");
  checkLength(v.count, n, "v", "one for each row of \"def\"");
  checkLength(r.count, n, "r", "one for each row of \"def\"");
  const SparseView direct = sparseView(host::field(C, "K"), "field \"K\" of the damping");
  refuseDense(direct);
  if (modes.count > 0) {
    double* w = data.data + m;
    cblas_dgemv(CblasColMajor, CblasTrans, n, m, 1.0, modes.data, n, v.data, 1, 0.0, w, 1);
    for (int i = 0; i < m; ++i) w[i] *= data.data[i];
    cblas_dgemv(CblasColMajor, CblasNoTrans, n, m, 1.0, modes.data, n, w, 1, 1.0, r.data, 1);
  }
  addProduct(direct, v, N, r, "field \"K\" of the damping");
}

}  // namespace

void KorvResidual(int code, ROr c, const mxArray* K, host::Doubles r) {
  const Vector u{c.u, c.uLen, "u"};
  const Vector v{c.v, c.vLen, "v"};
  const Vector a{c.a, c.aLen, "a"};
  switch (code) {
    case -2: {
      if (!a.data && c.alpha == 0.0) return;
      const SparseView m = sparseView(host::cell(K, 0), "the mass matrix");
      if (a.data) {
        refuseDense(m);
        addProduct(m, a, c.N, r, "the mass matrix");
      }
      addRayleigh(m, v, c.alpha, c.N, r, "the mass matrix");
      return;
    }
    case -3: {
      if (!v.data) return;
      const mxArray* C = host::cell(K, 1);
      if (C && mxIsStruct(C) && !host::field(C, "pr")) {
        if (host::field(C, "def")) addModalDamping(C, v, c.N, r);
        return;
      }
      const SparseView m = sparseView(C, "the damping matrix");
      refuseDense(m);
      addProduct(m, v, c.N, r, "the damping matrix");
      return;
    }
    case -1: {
      const SparseView m = sparseView(host::cell(K, 2), "the stiffness matrix");
      refuseDense(m);
      addProduct(m, u, c.N, r, "the stiffness matrix");
      addRayleigh(m, v, c.beta, c.N, r, "the stiffness matrix");
      return;
    }
    default:
      mexPrintf("Type %i", code);
      host::fail("Not a supported residual");
  }
}

}  // namespace quarn
