/* S = CALLBACKS (N, NAME, ...)  seconds for one of N calls of the function NAME with the further arguments, one result each: what a callback
 * takes from a MEX function. */
#include <mex.h>
#include <time.h>

static double seconds(void) {
  struct timespec t;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return (double)t.tv_sec + 1e-9 * (double)t.tv_nsec;
}

void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  char name[64];
  int k, n;
  double start;
  (void)nlhs;
  if (nrhs < 2 || mxGetString(prhs[1], name, sizeof name) != 0) mexErrMsgTxt("expected a count and a name");
  n = (int)mxGetScalar(prhs[0]);
  start = seconds();
  for (k = 0; k < n; ++k) {
    mxArray* out = NULL;
    mexCallMATLAB(1, &out, nrhs - 2, (mxArray**)(prhs + 2), name);
    mxDestroyArray(out);
  }
  plhs[0] = mxCreateDoubleScalar((seconds() - start) / n);
}
