// The commands on registered handles. Each has the signature of the module's entry; prhs[0] is the command word.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// index = quarn('chandleset', type, value)   registers a handle that owns a deep duplicate of value
void commandChandleSet(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

/// keys = quarn('chandleget')                 every key of the registry, ascending, a column
/// value = quarn('chandleget', index)         a deep duplicate of the handle's value
/// [...] = quarn('chandleget', fcn, index, ...)   fcn called on such a duplicate and the further arguments
void commandChandleGet(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

/// quarn('chandleclear')                      frees all handles; the keys stay
/// quarn('chandleclear', index)               frees one
void commandChandleClear(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
