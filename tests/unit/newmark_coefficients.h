// Coefficients of an integrator, for tests of single kernels.
#pragma once

#include "integration/newmark_kernels.h"

namespace quarn::test {

inline const NewmarkCoefficients coefficients{0.01, 2.5e-5, 0.005, 200.0, 4.0e4};

}  // namespace quarn::test
