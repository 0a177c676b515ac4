// Handles for the benchmarks.
#pragma once

#include <string>
#include <vector>

#include "base/chandle.h"

namespace quarn::bench {

/// A stiffness (type 1), mass (2) or damping (3) handle.
chandle* matrixHandle(int type, int n, const std::vector<int>& jc, const std::vector<int>& ir, const std::vector<double>& pr);
chandle* diagonalHandle(int type, const std::vector<double>& diagonal);

/// The laws that element() makes, by keyword.
const std::vector<std::string>& lawNames();

/// A nonlinear element whose observation c and command b are the rows given (rows x cols, one full or sparse row each).
/// groups: how many observed values, or groups of observed values and states, it has. Observes column `first` and those behind it.
chandle* element(const std::string& law, int groups, int columns, int first);

/// Cubic springs k*x^3 on the modal displacements of the rows (one after the other, columns values each), all in one element.
chandle* cubicSpring(const std::vector<double>& rows, int columns, double k);

/// A stop on either side of a modal displacement row*u: stiffness k beyond a gap, a tabulated law.
chandle* gapElement(const std::vector<double>& row, double gap, double k);

/// A Dahl slider on row*u of the first modes, its force kept in row `state` of u; states rows of u follow the modes.
chandle* dahlElement(const std::vector<double>& row, int states, int state, double dt, double k, double slip);

}  // namespace quarn::bench
