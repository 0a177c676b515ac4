// Creation of handles by type code: the one place that knows every handle class.
#pragma once

#include "base/chandle.h"

namespace quarn {

/// 1 stiffness, 2 mass, 3 damping, 1003 nonlinear element, 2000 diagonal Newmark integrator. Sets *ok to 1.
/// The object is host memory of the current call (mexMakeMemoryPersistent keeps it).
/// Raises KORV:quarn:NonHandle "Not a valid chandle type" for any other code.
chandle* chandleInitByType(int code, int* ok);

}  // namespace quarn
