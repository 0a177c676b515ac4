// The host's own sparse matrices, with indices of 64 bits.
#include "array.h"

namespace standin {

namespace {

mxArray* newSparse(mwSize m, mwSize n, mwSize nzmax, mxClassID id, bool isComplex) {
  const mwSize dims[2] = {m, n};
  const mwSize none[2] = {0, 0};
  takeAllocation(n + 1, sizeof(mwIndex));
  mxArray* a = newArray(id, 2, none);  // the values are as many as nzmax says, not m x n
  const Busy busy;
  a->dims.assign(dims, dims + 2);
  a->sparse = true;
  a->complex = isComplex;
  a->nzmax = nzmax > 0 ? nzmax : 1;
  a->re = newData(a->nzmax * elementSize(id));
  if (isComplex) a->im = newData(a->nzmax * elementSize(id));
  a->ir = newData(a->nzmax * sizeof(mwIndex));
  a->jc = newData((n + 1) * sizeof(mwIndex));
  return a;
}

}  // namespace
}  // namespace standin

using namespace standin;

mxArray* mxCreateSparse(mwSize m, mwSize n, mwSize nzmax, mxComplexity complexity) {
  return newSparse(m, n, nzmax, mxDOUBLE_CLASS, complexity == mxCOMPLEX);
}

mxArray* mxCreateSparseLogicalMatrix(mwSize m, mwSize n, mwSize nzmax) { return newSparse(m, n, nzmax, mxLOGICAL_CLASS, false); }

bool mxIsSparse(const mxArray* a) { return deref(a, "mxIsSparse").sparse; }

mwIndex* mxGetIr(const mxArray* a) { return static_cast<mwIndex*>(deref(a, "mxGetIr").ir.get()); }
mwIndex* mxGetJc(const mxArray* a) { return static_cast<mwIndex*>(deref(a, "mxGetJc").jc.get()); }
mwSize mxGetNzmax(const mxArray* a) { return deref(a, "mxGetNzmax").nzmax; }
