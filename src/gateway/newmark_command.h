#pragma once

#include "host/mex_api.h"

namespace quarn {

/// quarn('chandlediagnewmark', list, model, u, v, a, opt, mem, out)
///
/// Integrates a model over a whole time table. list: cell of structs or "chandle" vector, the integrator first, then the force
/// handles. model: struct with the force store "FNL". u, v, a: modal state, in-out. opt: Rayleigh pair. mem, out: work arrays and outputs,
/// written in place (see chandleDiagNewmark). Nothing is returned.
/// Raises KORV:quarn:Invalid "Expecting chandle vector", and what the integrator and the handles raise.
void commandDiagNewmark(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
