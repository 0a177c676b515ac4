// Handles for the benchmarks.
#pragma once

#include <string>
#include <vector>

#include "handles/chandle.h"

namespace quarn::bench {

/// A stiffness (type 1), mass (2) or damping (3) handle.
chandle* matrixHandle(int type, int n, const std::vector<int>& jc, const std::vector<int>& ir, const std::vector<double>& pr);
chandle* diagonalHandle(int type, const std::vector<double>& diagonal);

/// The laws that element() makes, by keyword.
const std::vector<std::string>& lawNames();

/// A nonlinear element whose observation c and command b are the rows given (rows x cols, one full or sparse row each).
/// groups: how many observed values, or groups of observed values and states, it has. Observes column `first` and those behind it.
chandle* element(const std::string& law, int groups, int columns, int first);

/// The same with one observed value that is the product with a full row, a modal element.
chandle* modalElement(const std::string& law, const std::vector<double>& row);

}  // namespace quarn::bench
