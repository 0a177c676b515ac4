#pragma once

#include "host/mex_api.h"

namespace quarn {

/// quarn('residual', r, model, u, v, a, opt, extra)
/// [kinetic, strain] = quarn('residual', ...)   with a matrix cell or a structure; exactly two outputs
///
/// Adds the residual of a model at the state (u, v, a) to r, in place. model: "chandle" vector, cell {M, C, K}, or struct
/// with the field "K" (that cell) and optionally "NL" and "FNL". opt: Rayleigh pair, or struct with fields "Rayleigh" and "tc".
/// Raises "model.K must be a 3*1 cell array" for a cell of fewer than three columns, and what the handles and terms raise.
void commandResidual(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
