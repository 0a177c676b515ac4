// The nonlinear list "NL" of a model structure, in the residual command.
#pragma once

#include "base/ror.h"
#include "host/arrays.h"

namespace quarn {

/// Adds the forces of the elements NL{1,3}, NL{2,3}, ... to r, in the order of the rows; rows without an element are skipped.
///
/// For each element: its observation buffers "vnl" and "unl" are refreshed from ctx.v and ctx.u (nl_observe.h), then its law
/// runs: a MATLAB function (nl_callback.h), "rotcenter" or "mocirc2" (nl_builtin.h).
///
/// ctx      borrowed; u, v, N and FNL are used, FNL is written where the elements say so
/// r        in-out, the residual of ctx.N values
/// NL       the list: a cell with the element structures in its third column; their buffers and cursors are written in place
/// nrhs, prhs  the arguments of the call (command word first), handed on to the MATLAB functions: these need all 8
/// checked  how many rows checkNlStructures has found good in this call
///
/// An element is checked before its own first write. An error of a MATLAB function leaves the call unchanged; what had been
/// added to r by then stays.
void addNlStructures(const ROr& ctx, host::Doubles r, const mxArray* NL, int nrhs, const mxArray** prhs, int checked = 0);

/// Refuses what addNlStructures would refuse, and writes nothing. Stops after the first element that calls MATLAB, since that
/// function may change what the later elements hold. Returns the number of rows that have been checked.
int checkNlStructures(const ROr& ctx, host::Doubles r, const mxArray* NL, int nrhs, const mxArray** prhs);

}  // namespace quarn
