// The command that tells which module this is.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// A struct of texts, whatever the arguments: "version" of quarn, "compiler" that built it, "host" that it was built for, "cblas" in it.
void commandVersion(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
