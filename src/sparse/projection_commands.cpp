// "c<-a'*b" and "abc": a sparse matrix projected onto dense bases.
#include <cstring>

#include "base/fixed_errors.h"
#include "host/arrays.h"
#include "host/errors.h"
#include "numbers/ranges.h"
#include "sparse/command_arguments.h"
#include "sparse/line_checks.h"
#include "sparse/matrix_commands.h"
#include "sparse/projection_kernels.h"
#include "sparse/sparse_view.h"

namespace quarn {

namespace {

SparseLines linesOf(const SparseView& v) { return {v.ir, v.jc, v.pr}; }

double* outputOf(const mxArray* c, std::size_t n, std::size_t lines) {
  if (!host::isRealDouble(c) || host::rowCount(c) != n || host::columnCount(c) != lines) {
    host::refuse("c must be a full real double %zux%zu array, got %s", n, lines, host::describe(c).text);
  }
  return host::doubles(c, "c").data;
}

bool isFullProduct(const mxArray* opt) {
  const host::Ints flags = host::int32s(opt, "opt");
  return flags.count >= 3 && flags.data[0] == 1 && flags.data[1] == 0 && flags.data[2] == 0;
}

}  // namespace

void commandProjectLeft(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 3) host::refuse("a and b expected, got %d operands", nrhs - 1);
  const SparseView s = sparseView(prhs[2], "b");
  const int shared = s.trans == 1 ? s.cols : s.rows;
  if (shared < 0 || host::rowCount(prhs[1]) != static_cast<std::size_t>(shared)) {
    if (s.trans == 1) host::fail(fixed::projectionRowsTransposed);  // this path has no identifier, on purpose
    host::fail(fixed::projectionRows);
  }
  if (s.lines() < 0) host::refuse("b : size %dx%d is negative", s.rows, s.cols);
  const DenseBase a = denseBase(prhs[1], "a");
  const auto lines = static_cast<std::size_t>(s.lines());
  const std::size_t values = checkedCount(a.cols, lines, "a'*b");
  if (values > 0) checkLines(s, s.lines(), a.rows, "b", "a column of a");

  double* result = nullptr;
  if (nrhs == 4) {
    result = outputOf(prhs[3], a.cols, lines);
  } else {
    plhs[0] = zeros(a.cols, lines, mxREAL);
    result = mxGetPr(plhs[0]);
  }
  if (values == 0) return;
  if (!overlap(result, values, a.re, a.rows * a.cols) && !overlap(result, values, s.pr, s.prLen)) {
    projectLines(result, a, linesOf(s), lines);
    return;
  }
  // The caller wants the result where an operand lies.
  double* apart = host::zeros(values);
  projectLines(apart, a, linesOf(s), lines);
  std::memcpy(result, apart, values * sizeof(double));
  mxFree(apart);
}

void commandTripleProduct(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 3) host::refuse("TA, k, TB and opt expected, got %d operands", nrhs - 1);
  const SparseView s = sparseView(prhs[2], "k");
  if (!s.sparse()) host::fail(fixed::abcNotSparse);
  const mxArray* opt = argument(nrhs, prhs, 4);
  if (!opt || !mxIsInt32(opt)) host::fail(fixed::abcFlagsNotInt32);
  if (!isFullProduct(opt)) host::fail(fixed::abcFlags);
  if (static_cast<long long>(host::rowCount(prhs[1])) != s.rows) host::fail(fixed::abcRows);
  if (static_cast<long long>(host::rowCount(prhs[3])) != s.cols) host::fail(fixed::abcColumns);

  const DenseBase a = denseBase(prhs[1], "TA");
  const DenseBase b = denseBase(prhs[3], "TB");
  const bool isComplex = mxIsComplex(prhs[1]) || mxIsComplex(prhs[3]);
  // Output columns are b.cols apart.
  if (a.cols > 0 && a.cols < b.cols) host::refuse("TA must have as many columns as TB (%zu), got %zu", b.cols, a.cols);
  const std::size_t pairs = checkedCount(a.cols, b.cols, "the product");
  if (pairs > 0) {
    // One line for each row is used, and one value of a column of TB for each line.
    if (s.cols < s.rows) host::refuse("k must have at least as many columns as rows, got %dx%d", s.rows, s.cols);
    checkLines(s, s.rows, a.rows, "k", "a column of TA");
  }
  plhs[0] = zeros(a.cols, b.cols, isComplex ? mxCOMPLEX : mxREAL);
  if (pairs == 0 || s.rows == 0) return;
  double* work = host::zeros(bilinearWork(a.cols, b.cols));
  double* imaginary = a.im || b.im ? mxGetPi(plhs[0]) : nullptr;
  bilinearForms(mxGetPr(plhs[0]), imaginary, a, b, linesOf(s), static_cast<std::size_t>(s.rows), work);
  mxFree(work);
}

}  // namespace quarn
