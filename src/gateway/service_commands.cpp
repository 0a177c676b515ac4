#include "gateway/service_commands.h"

#include "host/arrays.h"
#include "host/errors.h"

namespace quarn {

void commandIsMex(int /*nlhs*/, mxArray* plhs[], int /*nrhs*/, const mxArray* /*prhs*/[]) { plhs[0] = mxCreateDoubleScalar(1.0); }

void commandOmp(int /*nlhs*/, mxArray* plhs[], int /*nrhs*/, const mxArray* /*prhs*/[]) { plhs[0] = mxCreateDoubleScalar(-1.0); }

void commandCvs(int /*nlhs*/, mxArray* plhs[], int /*nrhs*/, const mxArray* /*prhs*/[]) {
  plhs[0] = mxCreateString("$Revision: 1.38 $  $Date: 2018/05/15 16:21:58 $");
}

void commandNlv1(int /*nlhs*/, mxArray* /*plhs*/[], int nrhs, const mxArray* prhs[]) {
  const bool hasStates = nrhs > 1 && mxIsStruct(prhs[1]) && mxGetFieldNumber(prhs[1], "unl") >= 0;
  if (!hasStates) host::refuse("expected a struct with a field \"unl\", got %s", host::describe(nrhs > 1 ? prhs[1] : nullptr).text);
}

}  // namespace quarn
