// "setsparse".
#include <cstring>

#include "host/arrays.h"
#include "host/errors.h"
#include "sparse/command_arguments.h"
#include "sparse/matrix_commands.h"
#include "sparse/sparse_view.h"

namespace quarn {

namespace {

/// The raw data of an array as doubles, one per element, whatever its class calls the 64 bits.
host::Doubles rawDoubles(const mxArray* a, const char* name) {
  const std::size_t n = host::count(a);
  if (n == 0) return {};
  if (!mxIsNumeric(a) || mxIsSparse(a) || static_cast<std::size_t>(mxGetElementSize(a)) < sizeof(double)) {
    host::refuse("%s must be a full array of 8-byte values, got %s", name, host::describe(a).text);
  }
  return {static_cast<double*>(mxGetData(a)), n};
}

void checkFits(std::size_t source, std::size_t target, const char* name) {
  if (source > target) host::refuse("%s holds %zu values, its target in M has room for %zu", name, source, target);
}

template <class T>
void copyOver(T* target, host::Span<T> source) {
  // Both may be the same array.
  if (source) std::memmove(target, source.data, source.count * sizeof(T));
}

}  // namespace

void commandSetSparse(int, mxArray**, int nrhs, const mxArray* prhs[]) {
  if (nrhs < 2) host::refuse("M, ir, jc and pr expected, got no operand");
  const SparseView target = sparseView(prhs[1], "M");
  const mxArray* ir = argument(nrhs, prhs, 2);
  const host::Ints indices = ir && mxIsInt32(ir) ? host::int32s(ir, "ir") : host::Ints{};
  const host::Doubles values = rawDoubles(argument(nrhs, prhs, 4), "pr");
  checkFits(indices.count, target.irLen, "ir");
  checkFits(values.count, target.prLen, "pr");
  if (values && target.realPart) host::refuse("the values of M must be real to be overwritten, got complex ones");
  copyOver(target.ir, indices);
  copyOver(target.pr, values);
}

}  // namespace quarn
