// Smooth hysteresis of Bouc and Wen, advanced with the displacement of the observed point.
#include <limits>

#include "nonlinear/state_laws.h"

namespace quarn {

namespace {

/// dz/dx along a motion in one direction, for y = z times that direction, and what keeps the solution on its side of the limit.
struct Hysteresis {
  explicit Hysteresis(const double* opt) : rate(opt[5]), rise(opt[6] + opt[7]), fall(opt[7] - opt[6]), exponent(opt[8]) {
    const double ratio = rate / rise;
    if (ratio > 0.0) limit = std::pow(ratio, 1.0 / exponent);
    steepness = exponent * (std::fabs(opt[6]) + std::fabs(opt[7]));
  }

  double slope(double y) const { return rate - (y < 0.0 ? fall : rise) * std::pow(std::fabs(y), exponent); }

  /// A solution that begins below the limit, where the slope is 0, stays below it, one above it stays above.
  double held(double y, bool below) const { return below ? (y > limit ? limit : y) : (y < limit ? limit : y); }

  /// Number of equal parts of an increment: the slope changes by about a quarter of itself in each, unless dx is many times the limit.
  int parts(double y, double dx) const {
    const double most =
        limit < std::numeric_limits<double>::infinity() ? std::fmax(std::fabs(y), limit) : std::fabs(y) + std::fabs(rate) * dx;
    const double wanted = 4.0 * dx * (steepness * std::pow(most, exponent - 1.0));
    if (!(wanted > 1.0)) return 1;
    return wanted < 32.0 ? static_cast<int>(std::ceil(wanted)) : 32;
  }

  double after(double y, double dx) const {
    const bool below = !(y > limit);
    const int n = parts(y, dx);
    const double h = dx / n;
    for (int i = 0; i < n; ++i) {
      const double k1 = slope(y);
      const double k2 = slope(held(y + 0.5 * h * k1, below));
      const double k3 = slope(held(y + 0.5 * h * k2, below));
      const double k4 = slope(held(y + h * k3, below));
      y = held(y + h / 6.0 * (k1 + 2.0 * k2 + 2.0 * k3 + k4), below);
    }
    return y;
  }

  double rate;
  double rise;
  double fall;
  double exponent;
  double limit = std::numeric_limits<double>::infinity();
  double steepness;
};

}  // namespace

void checkBoucWen(const chandleNl_inout& h, const ROr& /*ro*/) {
  requireParameters(h, "BoucWen", 9);
  const long long last = lastGroupStart(h, 3);
  if (last < 0) return;
  requireValues("BoucWen", "unl", h.unlTotal, last + 3);
  requireValues("BoucWen", "snl", h.snlTotal, last + 1);
}

void FuBoucWen(chandleNl_inout* h, ROr ro) {
  const double stiffness = h->opt[3];
  const double share = h->opt[4];
  const Hysteresis law(h->opt);
  for (std::ptrdiff_t i = 0; i < h->unlLen; i += 3) {
    const double x = h->unl[i];
    const double dx = x - h->unl[i + 2];
    const double side = dx < 0.0 ? -1.0 : 1.0;
    const double z = side * law.after(side * h->unl[i + 1], side * dx);
    h->snl[i] = stiffness * (share * x + (1.0 - share) * z);
    h->unl[i + 1] = z;
    h->unl[i + 2] = x;
  }
  StoreState(h, ro);
}

}  // namespace quarn
