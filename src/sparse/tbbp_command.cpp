// "tbbp".
#include "base/fixed_errors.h"
#include "host/errors.h"
#include "sparse/line_checks.h"
#include "sparse/matrix_commands.h"
#include "sparse/sp_tbb.h"

namespace quarn {

void commandTbbp(int /*nlhs*/, mxArray* /*plhs*/[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 4) host::refuse("expected 4 inputs (command, A, x, y), got %d", nrhs);
  const SparseView A = sparseView(prhs[1], "A");
  const host::Doubles x = host::doubles(prhs[2], "x");
  const host::Doubles y = host::realDoubles(prhs[3], "y");
  const int n = host::rows(prhs[2]);
  if (!A.pr || n == 0) return;
  if (!A.ir) host::fail(fixed::sparseOnly);
  checkLinePointers(A, n, "A");
  checkLength(x.count, n, "x", "one for each of its rows");
  checkLength(y.count, n, "y", "one for each row of x");
  const auto xLen = static_cast<unsigned>(x.count > 0xffffffffU ? 0xffffffffU : x.count);
  const int bad = SparseMatVecTested(y.data, x.data, A.pr, A.ir, A.jc, n, xLen);
  if (bad >= 0) host::refuse("A : an index of column %d lies outside x of %zu values%s", bad + 1, x.count, diagonalMarker(A));
}

}  // namespace quarn
