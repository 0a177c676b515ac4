// Random models: mostly valid, so that a run goes deep before something is wrong.
#pragma once

#include "arrays.h"

namespace fuzz {

/// Value of a handle for n degrees of freedom. type: 1, 2, 3, 1003 or 2000; the structure says it in "type", too.
mxArray* handleValue(Maker& make, int type, std::size_t n);
/// A nonlinear element handle with one of the laws.
mxArray* elementValue(Maker& make, std::size_t n);
/// Integrator of n modes over a few steps; loads: its number of load inputs.
mxArray* integratorValue(Maker& make, std::size_t n, std::size_t steps);
/// Element of a model's list "NL".
mxArray* listElement(Maker& make, std::size_t n);
/// Cell {M, C, K}.
mxArray* matrixCell(Maker& make, std::size_t n);

/// Arguments of a command behind its word.
standin::Arguments residualArguments(Maker& make, std::size_t n, mxArray* handles);
standin::Arguments newmarkArguments(Maker& make, std::size_t n, mxArray* handles);
standin::Arguments matrixArguments(Maker& make, const char* command);

}  // namespace fuzz
