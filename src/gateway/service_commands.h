// Small commands that tell about the module.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// 1.0: the compiled module answers, not a fallback in the host's language.
void commandIsMex(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// -1.0, whatever the arguments.
void commandOmp(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// The revision string.
void commandCvs(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// Reserved: looks at the field "unl" of a struct and does nothing.
void commandNlv1(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
