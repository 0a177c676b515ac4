// A projection with OpenBLAS, beside the BLAS that quarn links.
#pragma once

#include <vector>

#include "grid_matrix.h"

namespace quarn::bench {

/// Whether OpenBLAS is installed; a note on stderr where it is not.
bool openblasThere();

/// out (cols x cols) = T'*(A*T), T n x cols: A*T by a plain loop over the lines, eight columns at a time, T'*(...) by OpenBLAS on one
/// thread. work: room for n * (cols + 8) values.
void openblasForm(double* out, const GridMatrix& a, const std::vector<double>& t, std::vector<double>& work);

}  // namespace quarn::bench
