// The command that tells where the energy of a run in modal coordinates is.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// [E, V, A] = quarn ('energies', Q, K, C, [h gamma], V0, A0, S, L, B, F): energies, velocities and accelerations of a motion; see
/// integration/motion_energies.h.
void commandEnergies(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
