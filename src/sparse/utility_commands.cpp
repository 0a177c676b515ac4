// "setsparse" and "directzr".
#include <algorithm>
#include <cstring>

#include "host/arrays.h"
#include "host/errors.h"
#include "sparse/blas.h"
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

double* complexValues(std::size_t n) { return static_cast<double*>(mxCalloc(std::max<std::size_t>(n, 1), 2 * sizeof(double))); }

/// Adds n values of part into every second place of interleaved (real or imaginary places, by where it starts).
void interleave(double* interleaved, const double* part, std::size_t n) {
  constexpr std::size_t most = std::size_t{1} << 29;  // the routine counts in 32 bits, strides included
  for (std::size_t first = 0; first < n; first += most) {
    const int count = static_cast<int>(std::min(most, n - first));
    cblas_daxpy(count, 1.0, part + first, 1, interleaved + 2 * first, 2);
  }
}

double* packed(const DenseBase& base, std::size_t n) {
  double* values = complexValues(n);
  interleave(values, base.re, n);
  if (base.im) interleave(values + 1, base.im, n);
  return values;
}

void checkBlocks(const mxArray* blocks) {
  if (host::count(blocks) == 0) return;
  if (!blocks || !mxIsCell(blocks)) host::refuse("Kc must be a cell row of double matrices, got %s", host::describe(blocks).text);
  const std::size_t n = std::min(colsOf(blocks), host::count(blocks));
  for (std::size_t k = 0; k < n; ++k) {
    const mxArray* block = host::cell(blocks, k);
    if (block && !mxIsDouble(block)) host::refuse("Kc{%zu} must be a double matrix, got %s", k + 1, host::describe(block).text);
  }
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

void commandDirectZr(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const mxArray* matrixA = argument(nrhs, prhs, 1);
  const mxArray* matrixB = argument(nrhs, prhs, 3);
  if (!matrixA || !matrixB || !mxIsComplex(matrixA) || !mxIsComplex(matrixB)) host::fail("Complex numbers needed.");
  const DenseBase b = denseBase(matrixB, "B");
  const DenseBase f = denseBase(argument(nrhs, prhs, 4), "F");
  checkBlocks(prhs[2]);

  const std::size_t nB = checkedCount(b.rows, b.cols, "B");
  const std::size_t nF = checkedCount(b.rows, f.rows, "F");
  if (checkedCount(f.rows, f.cols, "F") < nF) {
    host::refuse("F must hold %zu values for each of its %zu rows (rows of B), got %zu", b.rows, f.rows, f.cols);
  }
  const std::size_t width = checkedCount(f.rows, b.cols, "the output");
  plhs[0] = zeros(rowsOf(matrixA), width, mxCOMPLEX);

  // What a solve would work on. There is none: the output keeps its zeros, and the factors (m x m values and their pivots) are
  // not allocated.
  double* packedB = packed(b, nB);
  double* packedF = packed(f, nF);
  mxFree(packedF);
  mxFree(packedB);
}

}  // namespace quarn
