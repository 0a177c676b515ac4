#include "law_loops.h"

#include <algorithm>
#include <cmath>

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
  for (std::size_t i = 0; i < a.unl.size(); i += 2) {
    const double v = a.vnl[i];
    const double f = a.unl[i + 1];
    const double s = v > 0.0 ? 1.0 : -1.0;
    a.snl[i] = a.unl[i + 1] = dahl(f, v, o[2], o[3], o[4], fMax, 1.0 - s * f / fMax);
  }
}

void stickSlipLoop(LawArrays& a) {
  const double* o = a.opt.data();
  for (std::size_t i = 0; i < a.unl.size(); i += 2) {
    const double trial = (a.unl[i + 1] - a.unl[i]) * o[4] + a.unl[i + 1] * o[6];
    if (o[5] > std::fabs(std::trunc(trial))) break;
    a.unl[i + 1] = ((a.unl[i] + a.vnl[i] * o[2]) * o[4] - (trial > 0.0 ? o[5] : -o[5])) / (o[4] + o[6]);
  }
  a.snl[0] = (a.unl[0] - a.unl[1]) * o[4] + o[3] * a.unl[0];
}

}  // namespace

bool lawLoop(const std::string& law, LawArrays& a) {
  const double* o = a.opt.data();
  const std::size_t n = a.unl.size();
  if (law == "Power") {
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = o[1] * std::pow(a.unl[i], o[2]);
  } else if (law == "Expon") {
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = o[1] * std::pow(o[2], a.unl[i]);
  } else if (law == "Table") {
    int segment = 0;
    for (std::size_t i = 0; i < n; ++i) a.snl[i] = interpolate(o + 1, o + 6, 5, a.unl[i], segment);
  } else if (law == "DahlC") {
    dahlLoop(a);
  } else if (law == "sts") {
    stickSlipLoop(a);
  } else {
    return false;
  }
  return true;
}

}  // namespace quarn::bench
