#include <cmath>

#include "elements.h"
#include "equations.h"

namespace quarn::bench {

namespace {

using Vector = std::vector<double>;

/// Modal oscillators under the load; subtracts row * force from the accelerations afterwards.
void modalRates(const Modes& m, double load, const double* y, double* dy) {
  const std::size_t n = m.w.size();
  for (std::size_t i = 0; i < n; ++i) {
    dy[i] = y[n + i];
    dy[n + i] = -m.shape[i] * load - 2.0 * m.damping * m.w[i] * y[n + i] - m.w[i] * m.w[i] * y[i];
  }
}

double dot(const Vector& row, const double* x) {
  double sum = 0.0;
  for (std::size_t i = 0; i < row.size(); ++i) sum += row[i] * x[i];
  return sum;
}

constexpr double gap = 0.2;
constexpr double stop = 50.0;

}  // namespace

Equation duffing() {
  Modes m{1, 0.0, 0.25, 0.5, {1.0}, {-1.0}};
  Equation e{"Duffing oscillator", m, 100.0, [](double t) { return 0.3 * std::cos(1.2 * t); }, 0, {}, {}};
  e.rate = [m, load = e.load](double t, const double* y, double* dy) {
    modalRates(m, load(t), y, dy);
    dy[1] -= 0.5 * y[0] * y[0] * y[0];
  };
  e.elements = [](double) { return std::vector<chandle*>{element("Power", 1, 1, 0)}; };
  return e;
}

Equation beamWithGap() {
  Modes m{100, 0.0, 0.25, 0.5, {}, {}, 0.01};
  Vector middle;
  for (int i = 1; i <= m.n; ++i) {
    m.w.push_back(static_cast<double>(i) * i);
    m.shape.push_back(-std::sin(0.3 * M_PI * i));
    middle.push_back(std::sin(0.5 * M_PI * i));
  }
  Equation e{"beam with gap", m, 30.0, [](double t) { return 0.3 * std::sin(0.9 * t); }, 0, {}, {}};
  e.rate = [m, middle, load = e.load](double t, const double* y, double* dy) {
    modalRates(m, load(t), y, dy);
    const double x = dot(middle, y);
    const double f = x > gap ? stop * (x - gap) : x < -gap ? stop * (x + gap) : 0.0;
    for (std::size_t i = 0; i < middle.size(); ++i) dy[middle.size() + i] -= middle[i] * f;
  };
  e.elements = [middle](double) { return std::vector<chandle*>{gapElement(middle, gap, stop)}; };
  return e;
}

Equation frictionChain() {
  constexpr int n = 20;
  constexpr double stiffness = 50.0;
  constexpr double slip = 0.3;
  Modes m{n, 0.0, 0.25, 0.5, {}, {}, 0.01};
  std::vector<Vector> shape(n);
  for (int i = 1; i <= n; ++i) {
    m.w.push_back(20.0 * std::sin(M_PI * i / (2.0 * (n + 1))));
    double load = 0.0;
    for (int j = 1; j <= n; ++j) {
      const double x = std::sqrt(2.0 / (n + 1)) * std::sin(M_PI * i * j / (n + 1));
      shape[static_cast<std::size_t>(j) - 1].push_back(x);
      load += x;
    }
    m.shape.push_back(-load);
  }
  Equation e{"Dahl chain", m, 20.0, [](double t) { return std::sin(1.5 * t); }, n, {}, {}};
  e.rate = [m, shape, load = e.load](double t, const double* y, double* dy) {
    modalRates(m, load(t), y, dy);
    for (std::size_t j = 0; j < shape.size(); ++j) {
      const double v = dot(shape[j], y + n);
      const double f = y[2 * n + j];
      dy[2 * n + j] = stiffness * v * (1.0 - (v > 0.0 ? 1.0 : -1.0) * f / slip);
      for (std::size_t i = 0; i < n; ++i) dy[n + i] -= shape[j][i] * f;
    }
  };
  e.elements = [shape](double dt) {
    std::vector<chandle*> all;
    for (int j = 0; j < n; ++j) all.push_back(dahlElement(shape[static_cast<std::size_t>(j)], n, n + j, dt, stiffness, slip));
    return all;
  };
  return e;
}

}  // namespace quarn::bench
