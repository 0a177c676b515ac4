#include "law_loops.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quarn::bench {

namespace {

double interpolate(const double* x, const double* y, int knots, double at, int& segment) {
  while (segment < knots - 2 && at > x[segment + 1]) ++segment;
  while (segment > 0 && x[segment] > at) --segment;
  const double f = (at - x[segment]) / (x[segment + 1] - x[segment]);
  return f * y[segment + 1] + (1.0 - f) * y[segment];
}

double dahl(double f, double v, double h, double k, double e, double fMax, double z) {
  if (z > 0.0) f = f + v * h * k * std::pow(z, e);
  return std::max(-fMax, std::min(fMax, f));
}

void dahlLoop(LawArrays& a) {
  const double* o = a.opt.data();
  const double fMax = o[5] * o[6];
  for (std::size_t i = 0; i < a.n; i += 2) {
    const double v = a.vnl[i];
    const double f = a.unl[i + 1];
    const double s = v > 0.0 ? 1.0 : -1.0;
    a.snl[i] = a.unl[i + 1] = dahl(f, v, o[2], o[3], o[4], fMax, 1.0 - s * f / fMax);
  }
}

/// Elements with the observed value and one state (q = 2, m = 1), one sub-step.
void maxwellLoop(LawArrays& a) {
  const double* Cu = a.opt.data() + 5;
  const double* Dv = Cu + 6;
  const double* B = Dv + 6;
  const double* A = B + 2;
  const double* E = A + 1;
  const double h = a.opt[2];
  for (std::size_t e = 0; e < a.n; e += 2) {
    double* u = a.unl.data() + e;
    double* v = a.vnl.data() + e;
    double* committedU = u + 2 * a.n;
    double* committedV = v + 2 * a.n;
    u[1] = committedU[1] + h * committedV[1];
    for (int i = 0; i < 2; ++i) {
      v[1 + i] = committedV[1 + i] = B[i] * u[0] + A[i] * u[1] + E[i] * v[0];
      committedU[1 + i] = u[1 + i];
    }
    double force = 0.0;
    for (int i = 0; i <= 2; ++i) force += Cu[i] * u[i] + Dv[i] * v[i];
    a.snl[e] = force;
  }
}

/// One part of a way: the benchmark's ways are short.
void boucWenLoop(LawArrays& a) {
  const double* o = a.opt.data();
  const double limit = std::pow(o[5] / (o[6] + o[7]), 1.0 / o[8]);
  const auto slope = [&](double y) { return o[5] - (o[7] + (y < 0.0 ? -o[6] : o[6])) * std::pow(std::fabs(y), o[8]); };
  for (std::size_t i = 0; i < a.n; i += 3) {
    double* u = a.unl.data() + i;
    const double h = std::fabs(u[0] - u[2]);
    const double side = u[0] < u[2] ? -1.0 : 1.0;
    const double y = side * u[1];
    const double k1 = slope(y);
    const double k2 = slope(std::min(limit, y + 0.5 * h * k1));
    const double k3 = slope(std::min(limit, y + 0.5 * h * k2));
    const double k4 = slope(std::min(limit, y + h * k3));
    u[1] = side * std::min(limit, y + h / 6.0 * (k1 + 2.0 * k2 + 2.0 * k3 + k4));
    u[2] = u[0];
    a.snl[i] = o[3] * (o[4] * u[0] + (1.0 - o[4]) * u[1]);
  }
}

void impactLoop(LawArrays& a) {
  const double* o = a.opt.data();
  for (std::size_t i = 0; i < a.n; ++i) {
    const double depth = o[5] * a.unl[i] - o[4];
    a.snl[i] = depth > 0.0 ? o[5] * std::max(0.0, o[1] * std::pow(depth, o[2]) * (1.0 + o[3] * o[5] * a.vnl[i])) : 0.0;
  }
}

/// Groups of three observed values and two states; the first group's observed values are every group's in the linear terms, as the law is
/// defined. The table of limit and stiffness has five knots.
void climaLoop(LawArrays& a) {
  const double* o = a.opt.data();
  const double* knots = o + 7;
  int segment = 0;
  for (std::size_t i = 0; i < a.n; i += 5) {
    double* u = a.unl.data() + i;
    const double limit = interpolate(knots, knots + 5, 5, u[2], segment);
    const double stiffness = interpolate(knots, knots + 10, 5, u[2], segment);
    const double fMax = o[5] * limit;
    for (std::size_t k = 0; k < 2; ++k) {
      const double v = a.vnl[i + k];
      const double z = 1.0 - (v > 0.0 ? 1.0 : -1.0) * (u[3 + k] / fMax);
      a.snl[k] = u[3 + k] = dahl(u[3 + k], v, o[2], stiffness, o[4], fMax, z) - o[3] * a.unl[k];
    }
    a.snl[2] = limit - o[3] * a.unl[2] - o[6];
  }
}

/// Five displacements and three velocities.
void surfaceLoop(LawArrays& a) {
  const double* x = a.opt.data() + 3;
  const double* v = x + 5;
  const double* force = v + 3;
  int along = 0;
  int rate = 0;
  for (std::size_t i = 0; i < a.n; ++i) {
    while (rate < 1 && a.vnl[i] > v[rate + 1]) ++rate;
    while (rate > 0 && v[rate] > a.vnl[i]) --rate;
    const double g = (a.vnl[i] - v[rate]) / (v[rate + 1] - v[rate]);
    const double* slow = force + 5 * static_cast<std::ptrdiff_t>(rate);
    a.snl[i] = g * interpolate(x, slow + 5, 5, a.unl[i], along) + (1.0 - g) * interpolate(x, slow, 5, a.unl[i], along);
  }
}

void stickSlipLoop(LawArrays& a) {
  const double* o = a.opt.data();
  for (std::size_t i = 0; i < a.n; i += 2) {
    const double trial = (a.unl[i + 1] - a.unl[i]) * o[4] + a.unl[i + 1] * o[6];
    if (o[5] > std::fabs(std::trunc(trial))) break;
    a.unl[i + 1] = ((a.unl[i] + a.vnl[i] * o[2]) * o[4] - (trial > 0.0 ? o[5] : -o[5])) / (o[4] + o[6]);
  }
  a.snl[0] = (a.unl[0] - a.unl[1]) * o[4] + o[3] * a.unl[0];
}

void radialLoop(LawArrays& a) {
  const double* o = a.opt.data();
  for (std::size_t i = 0; i < a.n; i += 2) {
    const double x = a.unl[i] - o[9];
    const double y = a.unl[i + 1] - o[10];
    const double r = std::sqrt(x * x + y * y);
    if (r <= o[1]) {
      a.snl[i] = a.snl[i + 1] = 0.0;
      continue;
    }
    const double c = x / r;
    const double s = y / r;
    const double n = std::max(0.0, o[2] * std::pow(r - o[1], o[3]) * (1.0 + o[4] * (c * a.vnl[i] + s * a.vnl[i + 1])));
    const double v = c * a.vnl[i + 1] - s * a.vnl[i] + o[7] * o[8];
    const double t = o[5] * n * v / std::sqrt(v * v + o[6] * o[6]);
    a.snl[i] = n * c - t * s;
    a.snl[i + 1] = n * s + t * c;
  }
}

void filmLoop(LawArrays& a) {
  const double* o = a.opt.data();
  const double scale = o[1] * o[3] * std::pow(o[2], 3.0) / (2.0 * o[4] * o[4]);
  for (std::size_t i = 0; i < a.n; i += 2) {
    double x = (a.unl[i] - o[7]) / o[4];
    double y = (a.unl[i + 1] - o[8]) / o[4];
    const double inside = std::min(1.0, o[6] / std::hypot(x, y));
    x *= inside;
    y *= inside;
    const double c = y * o[5] + 2.0 * a.vnl[i] / o[4];
    const double d = x * o[5] - 2.0 * a.vnl[i + 1] / o[4];
    const double n = std::hypot(c, d);
    const double p = (x * c - y * d) / n;
    const double q = (x * d + y * c) / n;
    const double s = 1.0 - x * x - y * y;
    const double g = std::atan2(std::sqrt(s), -p) / std::sqrt(s);
    const double f = scale * (3.0 * p + g * (s + 3.0 * p * p)) / (s * s);
    const double t = scale * q * (2.0 + p * p / (1.0 - q * q) + 3.0 * p * g) / (s * s);
    a.snl[i] = f * c + t * d;
    a.snl[i + 1] = t * c - f * d;
  }
}

}  // namespace

void lawLoop(const std::string& law, LawArrays& a) {
  const double* o = a.opt.data();
  const std::size_t n = a.n;
  if (law == "Power") {
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = o[1] * std::pow(a.unl[i], o[2]);
  } else if (law == "Expon") {
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = o[1] * std::pow(o[2], a.unl[i]);
  } else if (law == "Damper") {
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = o[1] * std::copysign(std::pow(std::fabs(a.vnl[i]), o[2]), a.vnl[i]);
  } else if (law == "BoucWen") {
    boucWenLoop(a);
  } else if (law == "Contact") {
    impactLoop(a);
  } else if (law == "Surface") {
    surfaceLoop(a);
  } else if (law == "Table") {
    int segment = 0;
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = interpolate(o + 1, o + 6, 5, a.unl[i], segment);
  } else if (law == "DahlC") {
    dahlLoop(a);
  } else if (law == "sts") {
    stickSlipLoop(a);
  } else if (law == "Maxw") {
    maxwellLoop(a);
  } else if (law == "Radial") {
    radialLoop(a);
  } else if (law == "Journal") {
    filmLoop(a);
  } else if (law == "Clima2") {
    climaLoop(a);
  } else if (law == "User") {
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = o[3] * a.unl[i] * a.unl[i] * a.unl[i];
  } else {
    std::abort();
  }
}

}  // namespace quarn::bench
