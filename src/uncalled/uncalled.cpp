#include "uncalled/uncalled.h"

#include "handles/hindex.h"
#include "host/errors.h"
#include "integration/korv_residual.h"

namespace quarn {

void doFlush() {
  host::callHost(0, nullptr, 0, nullptr, "drawnow");
  mxArray* seconds = mxCreateDoubleScalar(1e-05);
  host::callHost(0, nullptr, 1, &seconds, "pause");
  mxDestroyArray(seconds);
}

void emptyStack() {
  mexPrintf("Emptying quarn stack\n");
  cIndex.free_index(-1);
}

void korv_mkl_get_sparse(const mxArray* a, void** ptrs, int* dims) {
  const SparseView v = sparseView(a, "the matrix");
  ptrs[0] = v.ir;
  ptrs[1] = v.jc;
  ptrs[2] = v.pr;
  dims[2] = v.trans;
  if (!v.pr && v.rows == 0 && v.cols == 0) return;
  dims[0] = v.rows;
  dims[1] = v.cols;
}

double* pmatGetPr(const mxArray* a) { return pmatDoubles(a, "the array").data; }

void KorvResidual(int code, ROr c, const mxArray* K, host::Doubles r) { KorvTerm(code, c, K, r).add(); }

}  // namespace quarn
