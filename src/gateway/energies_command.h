// The command that tells where the energy of a run in modal coordinates is.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// [E, V, A] = quarn ('energies', Q, K, C, [h gamma], V0, A0, S, L, B, F): energies, velocities and accelerations of a motion; see
/// integration/motion_energies.h. All are read, none is written. Refuses fewer than seven inputs or more than eleven, arrays that are no
/// full doubles, counts that do not fit Q, a step that is not finite and above 0, a gamma that is not finite or below 0.
void commandEnergies(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
