// Length of a vector in the plane, beyond the numbers whose squares can be held as well.
#pragma once

#include <cmath>

namespace quarn {

/// sqrt (x^2 + y^2), to the bit, where the sum of squares is between 1e-290 and the greatest number; otherwise the same with x and y scaled
/// by a power of two, so that their squares neither overflow nor vanish. 0 where both are; infinite or NaN where one of them is.
inline double planeLength(double x, double y) {
  const double squares = x * x + y * y;
  if (squares > 1e-290 && squares <= 1.7976931348623157e308) return std::sqrt(squares);
  const double most = std::fmax(std::fabs(x), std::fabs(y));
  if (most == 0.0 || !std::isfinite(x) || !std::isfinite(y)) return std::sqrt(squares);
  const int scale = std::ilogb(most);
  const double a = std::scalbn(x, -scale);
  const double b = std::scalbn(y, -scale);
  return std::scalbn(std::sqrt(a * a + b * b), scale);
}

}  // namespace quarn
