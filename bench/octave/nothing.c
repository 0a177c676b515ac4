/* A MEX function that does nothing: what the host takes for a call. */
#include <mex.h>

void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  (void)nlhs;
  (void)plhs;
  (void)nrhs;
  (void)prhs;
}
