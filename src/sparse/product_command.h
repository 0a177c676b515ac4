#pragma once

#include "host/mex_api.h"

namespace quarn {

/// quarn('tbbp', A, x, y)   y = y + A*x in place, line by line of the stored matrix, over as many lines as x has rows
void commandTbbp(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
