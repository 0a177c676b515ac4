// The integrator with a full damping matrix and the matrix gain that makes it implicit, beside runs with a gain per mode.
#include "elements.h"
#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "modal_run.h"
#include "newmark_loops.h"

namespace quarn::bench {

namespace {

/// Modal damping, and one dashpot that acts on all modes: C = diag (c) + s b b'.
struct Dashpot {
  std::vector<double> damping;  ///< n x n
  std::vector<double> gain;     ///< inverse of diag (1/gain a mode) + gamma/(beta dt) s b b', after Sherman and Morrison
};

Dashpot dashpot(const Modes& m, const std::vector<double>& c, double s) {
  const auto n = static_cast<std::size_t>(m.n);
  const std::vector<double> own = m.gains();
  const std::vector<double>& b = m.shape;
  const double scaled = m.coefficients().vFromD * s;
  double sum = 0.0;
  for (std::size_t i = 0; i < n; ++i) sum += b[i] * own[i] * b[i];
  Dashpot d{std::vector<double>(n * n), std::vector<double>(n * n)};
  for (std::size_t j = 0; j < n; ++j) {
    for (std::size_t i = 0; i < n; ++i) {
      d.damping[i + j * n] = (i == j ? c[i] : 0.0) + s * b[i] * b[j];
      d.gain[i + j * n] = (i == j ? own[i] : 0.0) - scaled * own[i] * b[i] * b[j] * own[j] / (1.0 + scaled * sum);
    }
  }
  return d;
}

chandle* fullHandle(int type, int n, const std::vector<double>& values) {
  std::vector<int> jc{0};
  std::vector<int> ir;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) ir.push_back(i);
    jc.push_back(static_cast<int>(ir.size()));
  }
  return matrixHandle(type, n, jc, ir, values);
}

/// One step, plainly: both matrices by columns.
void coupledStep(LoopState& s, std::vector<double>& f, std::vector<double>& d, const Dashpot& full, double load) {
  const auto n = s.u.size();
  const NewmarkCoefficients k = s.coefficients;
  newmarkPredict(s.u.data(), s.v.data(), s.a.data(), static_cast<int>(n), k);
  for (std::size_t i = 0; i < n; ++i) f[i] = s.shape[i] * load + s.k[i] * s.u[i];
  for (std::size_t j = 0; j < n; ++j) {
    for (std::size_t i = 0; i < n; ++i) f[i] += full.damping[i + j * n] * s.v[j];
  }
  for (double& x : d) x = 0.0;
  for (std::size_t j = 0; j < n; ++j) {
    for (std::size_t i = 0; i < n; ++i) d[i] += full.gain[i + j * n] * f[j];
  }
  for (std::size_t i = 0; i < n; ++i) {
    s.u[i] -= d[i];
    s.v[i] -= k.vFromD * d[i];
    s.a[i] -= d[i] * k.aFromD;
  }
}

void oneSize(int n, int steps) {
  const Modes m = spreadModes(n);
  const std::vector<double> loads = wave(static_cast<std::size_t>(steps), 0.0);
  LoopState loop(m);
  const Dashpot full = dashpot(m, loop.c, 0.1);
  std::vector<double> f(static_cast<std::size_t>(n));
  std::vector<double> d(f.size());
  ModalRun coupled(m, loads, 0, full.gain);
  coupled.add(diagonalHandle(1, loop.k));
  coupled.add(fullHandle(3, n, full.damping));
  coupled.start();
  ModalRun explicitly(m, loads);
  explicitly.add(diagonalHandle(1, loop.k));
  explicitly.add(fullHandle(3, n, full.damping));
  explicitly.start();
  ModalRun gainOnly(m, loads, 0, full.gain);
  gainOnly.add(diagonalHandle(1, loop.k));
  gainOnly.add(diagonalHandle(3, loop.c));
  gainOnly.start();
  ModalRun diagonal(m, loads);
  diagonal.add(diagonalHandle(1, loop.k));
  diagonal.add(diagonalHandle(3, loop.c));
  diagonal.start();
  const auto loopRun = [&] {
    for (const double load : loads) coupledStep(loop, f, d, full, load);
  };
  Case c{"gain", "a step", n, static_cast<double>(steps), "step", 1e-9, {}};
  c.programs.push_back({"C loop", loopRun, [&] {
                          loop.reset();
                          loopRun();
                          return loop.state();
                        }});
  c.programs.push_back({"quarn, full C and gain", [&] { coupled.run(); },
                        [&] {
                          coupled.start();
                          coupled.run();
                          return coupled.state();
                        }});
  c.programs.push_back({"full C, gain a mode", [&] { explicitly.run(); }, {}});
  c.programs.push_back({"diagonal C, full gain", [&] { gainOnly.run(); }, {}});
  c.programs.push_back({"diagonal C, gain a mode", [&] { diagonal.run(); }, {}});
  run(c);
}

}  // namespace

void benchGain() {
  for (const int n : {20, 100, 300}) {
    if (quick() && n > 20) break;
    oneSize(n, 300);
  }
}

}  // namespace quarn::bench
