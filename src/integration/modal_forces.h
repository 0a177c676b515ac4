// Forces on the modes from forces along fixed directions, several columns at a time: directions may be many, and are read once for all of
// them.
#pragma once

#include <cstddef>

namespace quarn {

/// Most columns of a call.
constexpr std::size_t kForceColumns = 8;

/// f[i + j*n] = from[i + j*n] + directions[i] * values[j*count] + directions[i + n] * values[1 + j*count] + ..., in this order, for i < n
/// and j < columns <= kForceColumns; without from (null) it begins with 0.0. n: a multiple of 8. directions: n x count, values: count x
/// columns. f (out) may overlap none of them.
void modalForces(double* f, const double* from, std::size_t n, const double* directions, std::size_t count, const double* values,
                 std::size_t columns);

}  // namespace quarn
