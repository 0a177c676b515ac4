// A measured force over displacement and velocity, bilinear between the knots of a grid.
#include <algorithm>
#include <cfloat>
#include <cmath>

#include "host/errors.h"
#include "nonlinear/laws.h"
#include "nonlinear/lin_interp.h"
#include "sparse/line_checks.h"

namespace quarn {

namespace {

/// The segment of an axis that holds a value, and how far into it that is: 0 to 1, less or more beyond the first and the last knot.
struct Place {
  int segment;
  double fraction;
};

/// Looks q up among n knots, from the middle on: what was looked up before plays no part. Raises `beyond` to the distance of q from them.
Place look(const double* knots, int n, double q, double* beyond) {
  const double outside = std::max(knots[0] - q, q - knots[n - 1]);
  if (outside > *beyond) *beyond = outside;
  const int s = std::min(searchAscending(knots, n, n / 2, q), n - 2);
  return {s, (q - knots[s]) / (knots[s + 1] - knots[s])};
}

double between(double f, double low, double high) { return f * high + (1.0 - f) * low; }

/// Refuses knots that do not ascend, NaN and what is infinitely far apart.
void checkKnots(const double* knots, int n, const char* what) {
  for (int i = 0; i + 1 < n; ++i) {
    const double length = knots[i + 1] - knots[i];
    if (!(length > 0.0 && length <= DBL_MAX))
      host::refuse("the %s of a surface must ascend, got %g after %g at knot %d", what, knots[i + 1], knots[i], i + 2);
  }
}

}  // namespace

void FuSurface(chandleNl_inout* h, ROr ro) {
  const int nx = h->iopt[5];
  const int nv = h->iopt[6];
  const double* x = h->opt + 3;
  const double* v = x + nx;
  const double* force = v + nv;
  for (int i = 0; i < h->unlLen; ++i) {
    const Place along = look(x, nx, h->unl[i], h->opt + 1);
    const Place rate = look(v, nv, h->vnl[i], h->opt + 2);
    const double* slow = force + static_cast<std::ptrdiff_t>(rate.segment) * nx + along.segment;
    const double* fast = slow + nx;
    h->snl[i] = between(rate.fraction, between(along.fraction, slow[0], slow[1]), between(along.fraction, fast[0], fast[1]));
  }
  storeForces(*h, ro);
}

void checkSurface(const chandleNl_inout& h, const ROr& /*ro*/) {
  checkLength(static_cast<std::size_t>(h.ioptLen), 7, "iopt", "entries 6 and 7 count displacements and velocities");
  const int nx = h.iopt[5];
  const int nv = h.iopt[6];
  if (nx < 2 || nv < 2) host::refuse("a surface needs 2 displacements and 2 velocities or more, iopt(6:7) has %d and %d", nx, nv);
  const long long values = 3LL + nx + nv + static_cast<long long>(nx) * nv;
  if (values > h.optLen)
    host::refuse("a surface of %d displacements and %d velocities takes %lld values of opt, got %d", nx, nv, values, h.optLen);
  const double* x = h.opt + 3;
  checkKnots(x, nx, "displacements");
  checkKnots(x + nx, nv, "velocities");
  const double* force = x + nx + nv;
  for (long long i = 0; i < static_cast<long long>(nx) * nv; ++i) {
    if (!std::isfinite(force[i]))
      host::refuse("the forces of a surface must be finite, got %g at displacement %lld, velocity %lld", force[i], i % nx + 1, i / nx + 1);
  }
  requireRates(h, "Surface");
  checkLength(h.snlTotal, h.unlLen, "snl", "as many as a page of unl");
}

}  // namespace quarn
