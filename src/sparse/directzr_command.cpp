// "directzr".
#include <algorithm>

#include "base/fixed_errors.h"
#include "host/arrays.h"
#include "host/errors.h"
#include "sparse/blas.h"
#include "sparse/command_arguments.h"
#include "sparse/matrix_commands.h"

namespace quarn {

namespace {

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
  const std::size_t n = std::min(host::columnCount(blocks), host::count(blocks));
  for (std::size_t k = 0; k < n; ++k) {
    const mxArray* block = host::cell(blocks, k);
    if (block && !mxIsDouble(block)) host::refuse("Kc{%zu} must be a double matrix, got %s", k + 1, host::describe(block).text);
  }
}

}  // namespace

void commandDirectZr(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const mxArray* matrixA = argument(nrhs, prhs, 1);
  const mxArray* matrixB = argument(nrhs, prhs, 3);
  if (!matrixA || !matrixB || !mxIsComplex(matrixA) || !mxIsComplex(matrixB)) host::fail(fixed::complexNeeded);
  const DenseBase b = denseBase(matrixB, "B");
  const DenseBase f = denseBase(argument(nrhs, prhs, 4), "F");
  checkBlocks(prhs[2]);

  const std::size_t nB = checkedCount(b.rows, b.cols, "B");
  const std::size_t nF = checkedCount(b.rows, f.rows, "F");
  if (checkedCount(f.rows, f.cols, "F") < nF) {
    host::refuse("F must hold %zu values for each of its %zu rows (rows of B), got %zu", b.rows, f.rows, f.cols);
  }
  const std::size_t width = checkedCount(f.rows, b.cols, "the output");
  plhs[0] = zeros(host::rowCount(matrixA), width, mxCOMPLEX);

  // What a solve would work on. There is none: the output keeps its zeros, and the factors (m x m values and their pivots) are
  // not allocated.
  double* packedB = packed(b, nB);
  double* packedF = packed(f, nF);
  mxFree(packedF);
  mxFree(packedB);
}

}  // namespace quarn
