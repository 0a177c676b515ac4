#include "gateway/residual_command.h"

#include <initializer_list>

#include "gateway/nl_structures.h"
#include "handles/handle_list.h"
#include "host/errors.h"
#include "integration/korv_residual.h"
#include "sparse/line_checks.h"
#include "sparse/phi1tmphi2.h"
#include "sparse/sparse_view.h"

namespace quarn {

namespace {

void addHandles(const ROr& c, host::Doubles r, const mxArray* handles) {
  chandle** list = newHandleList(handles);
  const int n = fillVectP(list, handles);
  for (int i = 0; i < n; ++i) {
    if (list[i]->type >= 0) list[i]->checkSizes(c, r.count);
  }
  for (int i = 0; i < n; ++i) {
    if (list[i]->type >= 0) list[i]->Residual(c, r.data);
  }
}

/// Half the quadratic form of a sparse matrix.
mxArray* energy(const mxArray* matrix, double* x, std::size_t xLen, int N, const char* matrixName, const char* vectorName) {
  mxArray* result = mxCreateDoubleMatrix(1, 1, mxREAL);
  const SparseView m = sparseView(matrix, matrixName);
  if (!x || !m.pr || N <= 0) return result;
  if (!m.ir) host::fail("Implemented for sparse matrices");
  checkLength(xLen, N, vectorName, "one for each row of u");
  checkLines(m, N, xLen, matrixName, vectorName);
  double* value = mxGetPr(result);
  phi1tmphi2_mkl(x, nullptr, x, nullptr, m.pr, m.ir, m.jc, N, value, nullptr);
  *value *= 0.5;
  return result;
}

}  // namespace

void commandResidual(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const ROr c = getROr(nrhs, prhs);
  const host::Doubles r = pmatDoubles(prhs[1], "r");
  const mxArray* model = prhs[2];
  if (host::isClass(model, "chandle")) {
    addHandles(c, r, model);
    return;
  }
  const bool matrices = mxIsCell(model);
  const mxArray* K = matrices ? model : host::field(model, "K");
  if (!matrices && !mxIsStruct(model)) {
    host::refuse("the model must be a chandle vector, a cell {M, C, K} or a struct with a field \"K\", got %s", host::describe(model).text);
  }
  if (host::cols(K) <= 2) host::fail("model.K must be a 3*1 cell array");
  if (!mxIsCell(K)) host::refuse("model.K must be a cell {M, C, K}, got %s", host::describe(K).text);
  const mxArray* NL = matrices ? nullptr : host::field(model, "NL");
  const bool elements = NL && mxIsCell(NL);
  const int checked = elements ? checkNlStructures(c, r, NL, nrhs, prhs) : 0;
  for (const int code : {-2, -3, -1}) KorvResidual(code, c, K, r);
  if (nlhs == 2) {
    plhs[0] = energy(host::cell(K, 0), c.v, c.vLen, c.N, "the mass matrix", "v");
    plhs[1] = energy(host::cell(K, 2), c.u, c.uLen, c.N, "the stiffness matrix", "u");
  }
  if (elements) addNlStructures(c, r, NL, nrhs, prhs, checked);
}

}  // namespace quarn
