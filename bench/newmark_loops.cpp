#include "newmark_loops.h"

#include <algorithm>

#include "numbers/processor.h"

namespace quarn::bench {

namespace {

QUARN_PROCESSOR_VERSIONS
void plainLoop(double* __restrict u, double* __restrict v, double* __restrict a, const double* __restrict gain,
               const double* __restrict shape, double load, int n, const NewmarkCoefficients& in) {
  const NewmarkCoefficients k = in;
  for (int i = 0; i < n; ++i) {
    const double up = (k.uFromA * a[i] + k.dt * v[i]) + u[i];
    const double vp = k.vFromA * a[i] + v[i];
    const double d = shape[i] * load * gain[i];
    u[i] = up - d;
    v[i] = vp - k.vFromD * d;
    a[i] = -(d * k.aFromD);
  }
}

QUARN_PROCESSOR_VERSIONS
void linearLoop(double* __restrict u, double* __restrict v, double* __restrict a, const double* __restrict gain,
                const double* __restrict shape, const double* __restrict stiffness, const double* __restrict damping, double load, int n,
                const NewmarkCoefficients& in) {
  const NewmarkCoefficients k = in;
  for (int i = 0; i < n; ++i) {
    const double up = (k.uFromA * a[i] + k.dt * v[i]) + u[i];
    const double vp = k.vFromA * a[i] + v[i];
    const double d = (shape[i] * load + stiffness[i] * up + damping[i] * vp) * gain[i];
    u[i] = up - d;
    v[i] = vp - k.vFromD * d;
    a[i] = -(d * k.aFromD);
  }
}

}  // namespace

LoopState::LoopState(const Modes& m)
    : u(static_cast<std::size_t>(m.n)), v(u.size()), a(u.size()), gain(m.gains()), shape(m.shape), coefficients(m.coefficients()) {
  for (const double w : m.w) {
    k.push_back(w * w);
    c.push_back(2.0 * m.damping * w);
  }
}

std::vector<double> LoopState::state() const {
  std::vector<double> s(u);
  s.insert(s.end(), v.begin(), v.end());
  s.insert(s.end(), a.begin(), a.end());
  return s;
}

void LoopState::reset() {
  for (auto* x : {&u, &v, &a}) std::fill(x->begin(), x->end(), 0.0);
}

void plainStep(LoopState& s, double load) {
  plainLoop(s.u.data(), s.v.data(), s.a.data(), s.gain.data(), s.shape.data(), load, static_cast<int>(s.u.size()), s.coefficients);
}

void linearStep(LoopState& s, double load) {
  linearLoop(s.u.data(), s.v.data(), s.a.data(), s.gain.data(), s.shape.data(), s.k.data(), s.c.data(), load, static_cast<int>(s.u.size()),
             s.coefficients);
}

}  // namespace quarn::bench
