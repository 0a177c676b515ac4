// "dtkt", "ta'*k*tb" and "igsm": retired forms of projections, kept for their checks and messages.
#include "base/fixed_errors.h"
#include "host/errors.h"
#include "sparse/command_arguments.h"
#include "sparse/matrix_commands.h"

namespace quarn {

void commandDtkt(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const mxArray* base = argument(nrhs, prhs, 1);
  const mxArray* k = argument(nrhs, prhs, 2);
  if (!isNativeSparse(k)) host::fail(fixed::dtktNotSparse);
  if (host::rowCount(k) != host::columnCount(k)) host::fail(fixed::dtktNotSquare);
  if (host::rowCount(base) != host::rowCount(k)) host::fail(fixed::dtktBaseSize);
  if (host::columnCount(base) > 0) host::fail(fixed::dtktRetired);
  plhs[0] = zeros(0, 1, mxREAL);
}

void commandTaKTb(int, mxArray**, int nrhs, const mxArray* prhs[]) {
  const mxArray* k = argument(nrhs, prhs, 2);
  const mxArray* tb = argument(nrhs, prhs, 3);
  if (!isNativeSparse(k)) host::fail(fixed::tktNotSparse);
  if (host::rowCount(prhs[1]) != host::rowCount(k)) host::fail(fixed::tktRows);
  if (!tb) host::refuse("ta, k and tb expected, got %d operands", nrhs - 1);
  if (host::columnCount(k) != host::rowCount(tb)) host::fail(fixed::tktColumns);
  host::fail(fixed::projectionRetired);
}

void commandIgsm(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs != 3) host::fail(fixed::igsmInputs);
  const mxArray* phi = prhs[1];
  const mxArray* k = prhs[2];
  if (isNativeSparse(phi)) host::fail(fixed::igsmBasis);
  if (!isNativeSparse(k)) host::fail(fixed::igsmNotSparse);
  if (host::rowCount(phi) != host::columnCount(k)) host::fail(fixed::igsmSize);
  if (host::columnCount(phi) > 0) host::fail(fixed::projectionRetired);
  plhs[0] = zeros(1, host::columnCount(k), mxREAL);
}

}  // namespace quarn
