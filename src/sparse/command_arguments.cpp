#include "sparse/command_arguments.h"

#include <cstdint>

#include "host/arrays.h"
#include "host/errors.h"

namespace quarn {

DenseBase denseBase(const mxArray* a, const char* name) {
  if (!a || !mxIsDouble(a) || mxIsSparse(a)) host::refuse("%s must be a full double matrix, got %s", name, host::describe(a).text);
  DenseBase base;
  base.rows = host::rowCount(a);
  base.cols = host::columnCount(a);
  if (host::count(a) == 0) return base;
  base.re = mxGetPr(a);
  if (mxIsComplex(a)) base.im = mxGetPi(a);
  return base;
}

std::size_t checkedCount(std::size_t rows, std::size_t cols, const char* name) {
  constexpr std::size_t most = PTRDIFF_MAX / 64;
  if (rows != 0 && cols > most / rows) host::refuse("%s : %zu x %zu values are more than memory can hold", name, rows, cols);
  return rows * cols;
}

mxArray* zeros(std::size_t rows, std::size_t cols, mxComplexity complexity) {
  checkedCount(rows, cols, "the output");
  return mxCreateDoubleMatrix(static_cast<mwSize>(rows), static_cast<mwSize>(cols), complexity);
}

}  // namespace quarn
