// Elements at places of a structure: their rows in modal coordinates are full. Cubic springs, one handle each and all rows in one handle,
// against a loop that a C programmer writes for them.
#include <cmath>

#include "elements.h"
#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "modal_run.h"
#include "newmark_loops.h"

namespace quarn::bench {

namespace {

constexpr double kStiffness = 0.5;

/// The rows of count places, one after the other.
std::vector<double> places(int count, int modes) {
  std::vector<double> rows;
  for (int e = 0; e < count; ++e) {
    for (int i = 0; i < modes; ++i) rows.push_back(std::sin(0.1 + 0.37 * (i + 1) * (e + 1)) / std::sqrt(static_cast<double>(modes)));
  }
  return rows;
}

/// Vectorised as a programmer would have it: the compiler may take the sum apart.
[[gnu::target_clones("default", "arch=x86-64-v3", "arch=x86-64-v4"), gnu::optimize("O3", "fast-math")]] double dot(
    int n, const double* __restrict a, const double* __restrict b) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) sum += a[i] * b[i];
  return sum;
}

[[gnu::target_clones("default", "arch=x86-64-v3", "arch=x86-64-v4"), gnu::optimize("O3")]] void axpy(int n, double f,
                                                                                                     const double* __restrict a,
                                                                                                     double* __restrict y) {
  for (int i = 0; i < n; ++i) y[i] += f * a[i];
}

class PlainLoop {
 public:
  PlainLoop(const Modes& m, std::vector<double> allRows, int elements)
      : loop(m), rows(std::move(allRows)), f(static_cast<std::size_t>(m.n)), count(elements), n(m.n) {}

  void step(double load) {
    newmarkPredict(loop.u.data(), loop.v.data(), loop.a.data(), n, loop.coefficients);
    for (std::size_t i = 0; i < f.size(); ++i) f[i] = loop.shape[i] * load + loop.k[i] * loop.u[i] + loop.c[i] * loop.v[i];
    for (int e = 0; e < count; ++e) {
      const double* row = rows.data() + static_cast<std::ptrdiff_t>(e) * n;
      axpy(n, kStiffness * std::pow(dot(n, row, loop.u.data()), 3.0), row, f.data());
    }
    newmarkCorrect(loop.u.data(), loop.v.data(), loop.a.data(), f.data(), loop.gain.data(), n, loop.coefficients);
  }
  void reset() { loop.reset(); }
  std::vector<double> state() const { return loop.state(); }

 private:
  LoopState loop;
  std::vector<double> rows;
  std::vector<double> f;
  int count;
  int n;
};

void cubicSprings(int modes, int count) {
  const int steps = modes * count > 20000 ? 20 : 100;
  const Modes m = spreadModes(modes);
  const std::vector<double> loads = wave(static_cast<std::size_t>(steps), 0.0);
  const std::vector<double> rows = places(count, modes);
  PlainLoop plain(m, rows, count);
  const LoopState diagonals(m);
  ModalRun each(m, loads);
  ModalRun together(m, loads);
  for (ModalRun* run : {&each, &together}) {
    run->add(diagonalHandle(1, diagonals.k));
    run->add(diagonalHandle(3, diagonals.c));
  }
  for (int e = 0; e < count; ++e) {
    const auto row = rows.begin() + static_cast<std::ptrdiff_t>(e) * modes;
    each.add(cubicSpring({row, row + modes}, modes, kStiffness));
  }
  together.add(cubicSpring(rows, modes, kStiffness));
  const auto plainRun = [&] {
    for (const double load : loads) plain.step(load);
  };
  const auto numbers = [](ModalRun& run) {
    run.start();
    run.run();
    return run.state();
  };
  each.start();
  together.start();
  Case c{"modal elements", std::to_string(modes) + " modes", count, static_cast<double>(count) * steps, "element and step", 1e-9, {}};
  c.programs.push_back({"plain C", plainRun, [&] {
                          plain.reset();
                          plainRun();
                          return plain.state();
                        }});
  c.programs.push_back({"quarn, one handle each", [&] { each.run(); }, [&] { return numbers(each); }});
  c.programs.push_back({"quarn, all rows in one", [&] { together.run(); }, [&] { return numbers(together); }});
  run(c);
}

}  // namespace

void benchModalElements() {
  for (const int modes : {20, 40, 100, 300, 1'000}) {
    for (const int count : {1, 10, 100, 300}) {
      if (quick() && modes * count > 400) continue;
      cubicSprings(modes, count);
    }
  }
}

}  // namespace quarn::bench
