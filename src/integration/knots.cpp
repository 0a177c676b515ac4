#include "integration/knots.h"

#include <cmath>

namespace quarn {

int Knots::firstWrong() const {
  for (int k = 0; k < n; ++k) {
    if (!std::isfinite(time(k))) return k;
    if (k > 0 && time(k) < time(k - 1)) return k;
    if (k > 1 && time(k) == time(k - 2)) return k;
  }
  return n;
}

bool Knots::spanIsFinite() const { return n == 0 || std::isfinite(last() - first()); }

KnotPlace Knots::find(double t) {
  int k = cursor;
  while (k > 0 && time(k) > t) --k;
  while (k + 1 < n && time(k + 1) <= t) ++k;
  cursor = k;
  if (k > 0 && time(k) == t && time(k - 1) == t) return {k - 1, 0.5};
  // Not beyond the table, even where a step has written into it: a caller's arrays may share memory.
  if (time(k) == t || k + 1 == n) return {k, 0.0};
  return {k, (t - time(k)) / (time(k + 1) - time(k))};
}

}  // namespace quarn
