#include <cmath>

#include "host/errors.h"
#include "nonlinear/shaft_laws.h"
#include "numbers/plane_length.h"

namespace quarn {

namespace {

struct Integrals {
  double A;
  double B;
};

/// A and B where the film opens, X < 0, and s is small: there both numerators cancel down to s^2. Series in t = s/X^2 without what cancels,
///   -X^3 A = sum of (-t)^(n-2) 4 (n-1)/(4 n^2 - 1),   X^4 B/Y = sum of (-t)^(n-2) (2 n - 2)/(2 n + 1),   n from 2; 17 terms for t < 0.1.
Integrals opening(double X, double Y, double s) {
  const double square = X * X;
  const double t = s / square;
  double a = 0.0;
  double b = 0.0;
  for (int n = 18; n >= 2; --n) {
    const double m = 2.0 * n;
    a = 2.0 * (m - 2.0) / (m * m - 1.0) - t * a;
    b = (m - 2.0) / (m + 1.0) - t * b;
  }
  return {a / (square * -X), Y * b / (square * square)};
}

Integrals integrals(double X, double Y, double s) {
  if (X < 0.0 && s < 0.1 * X * X) return opening(X, Y, s);
  const double q = std::sqrt(s);
  const double g = std::atan2(q, -X) / q;
  return {(3.0 * X + g * (s + 3.0 * X * X)) / (s * s), Y * (2.0 + X * X / (1.0 - Y * Y) + 3.0 * X * g) / (s * s)};
}

}  // namespace

void checkJournal(const chandleNl_inout& h, const ROr& /*ro*/) {
  requirePairs(h, "Journal", 10);
  if (!(h.opt[4] > 0.0)) host::refuse("the clearance of law \"Journal\", opt(5), must be above 0, got %g", h.opt[4]);
  if (!(h.opt[6] > 0.0 && h.opt[6] < 1.0)) {
    host::refuse("the greatest eccentricity of law \"Journal\", opt(7), must be between 0 and 1, got %g", h.opt[6]);
  }
}

void FuJournal(chandleNl_inout* h, ROr ro) {
  const double length = h->opt[2];
  const double clearance = h->opt[4];
  const double spin = h->opt[5];
  const double most = h->opt[6];
  const double scale = h->opt[1] * h->opt[3] * length * length * length / (2.0 * clearance * clearance);
  for (int i = 0; i < h->unlLen; i += 2) {
    double x = (h->unl[i] - h->opt[7]) / clearance;
    double y = (h->unl[i + 1] - h->opt[8]) / clearance;
    const double eccentricity = planeLength(x, y);
    if (eccentricity > h->opt[9]) h->opt[9] = eccentricity;
    if (eccentricity > most) {
      x = x * (most / eccentricity);
      y = y * (most / eccentricity);
    }
    const double a = y * spin + 2.0 * (h->vnl[i] / clearance);
    const double b = x * spin - 2.0 * (h->vnl[i + 1] / clearance);
    const double n = planeLength(a, b);
    if (n == 0.0) {
      h->snl[i] = 0.0;
      h->snl[i + 1] = 0.0;
      continue;
    }
    const double X = (x * a - y * b) / n;
    const double Y = (x * b + y * a) / n;
    const double s = 1.0 - x * x - y * y;
    const auto [A, B] = integrals(X, Y, s);
    h->snl[i] = scale * (A * a + B * b);
    h->snl[i + 1] = scale * (B * a - A * b);
  }
  storeForces(*h, ro);
}

}  // namespace quarn
