// "dtkt", "ta'*k*tb" and "igsm": retired forms of projections, kept for their checks and messages.
#include "host/errors.h"
#include "sparse/command_arguments.h"
#include "sparse/matrix_commands.h"

namespace quarn {

void commandDtkt(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const mxArray* base = argument(nrhs, prhs, 1);
  const mxArray* k = argument(nrhs, prhs, 2);
  if (!isNativeSparse(k)) host::fail("quarn dtkt : b must be sparse");
  if (host::rowCount(k) != host::columnCount(k)) host::fail("quarn  : k must be square");
  if (host::rowCount(base) != host::rowCount(k)) host::fail("base has a wrong size");
  if (host::columnCount(base) > 0) host::fail("quarn  : reimplement for mkls");
  plhs[0] = zeros(0, 1, mxREAL);
}

void commandTaKTb(int, mxArray**, int nrhs, const mxArray* prhs[]) {
  const mxArray* k = argument(nrhs, prhs, 2);
  const mxArray* tb = argument(nrhs, prhs, 3);
  if (!isNativeSparse(k)) host::fail("quarn ta'*k*tb : k must be sparse");
  if (host::rowCount(prhs[1]) != host::rowCount(k)) host::fail("ta and k : Wrong size");
  if (!tb) host::refuse("ta, k and tb expected, got %d operands", nrhs - 1);
  if (host::columnCount(k) != host::rowCount(tb)) host::fail("k and tb :Wrong size");
  host::fail("ir problem");
}

void commandIgsm(int, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs != 3) host::fail("Three inputs required.");
  const mxArray* phi = prhs[1];
  const mxArray* k = prhs[2];
  if (isNativeSparse(phi)) host::fail("phi must be full");
  if (!isNativeSparse(k)) host::fail("k must be sparse");
  if (host::rowCount(phi) != host::columnCount(k)) host::fail("Inner matrix dimensions must agree.");
  if (host::columnCount(phi) > 0) host::fail("ir problem");
  plhs[0] = zeros(1, host::columnCount(k), mxREAL);
}

}  // namespace quarn
