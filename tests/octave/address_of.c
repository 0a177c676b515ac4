/* ADDRESS = ADDRESS_OF (X)  address of the values of the full double array X, as a uint64.
 *
 * Stands for a buffer that is handed to the module inside an object: X must live, and share its memory with nothing, while the
 * address is in use. */
#include <mex.h>
#include <stdint.h>

void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  (void)nlhs;
  if (nrhs != 1 || !mxIsDouble(prhs[0]) || mxIsSparse(prhs[0])) mexErrMsgTxt("address_of needs one full double array");
  plhs[0] = mxCreateNumericMatrix(1, 1, mxUINT64_CLASS, mxREAL);
  *(uint64_t*)mxGetData(plhs[0]) = (uint64_t)(uintptr_t)mxGetPr(prhs[0]);
}
