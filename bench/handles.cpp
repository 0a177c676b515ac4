// The integrator with force handles, against hand-written loops of the same formulas.
#include <cmath>

#include "elements.h"
#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "modal_run.h"
#include "newmark_loops.h"

namespace quarn::bench {

namespace {

std::vector<double> fresh(ModalRun& m) {
  m.start();
  m.run();
  return m.state();
}

void diagonalSystem(int n, int steps) {
  const Modes m = spreadModes(n);
  const std::vector<double> loads = wave(static_cast<std::size_t>(steps), 0.0);
  LoopState loop(m);
  ModalRun product(m, loads);
  product.add(diagonalHandle(1, loop.k));
  product.add(diagonalHandle(3, loop.c));
  product.start();
  const auto loopRun = [&] {
    for (const double load : loads) linearStep(loop, load);
  };
  Case c{"handles", "diagonal K and C", n, static_cast<double>(n) * steps, "mode and step", 1e-9, {}};
  c.programs.push_back({"fused C loop", loopRun, [&] {
                          loop.reset();
                          loopRun();
                          return loop.state();
                        }});
  c.programs.push_back({"quarn", [&] { product.run(); }, [&] { return fresh(product); }});
  run(c);
}

void sparseSystem(int n, int steps) {
  const GridMatrix g = gridMatrix(7, n);
  const Modes m = spreadModes(g.n);
  const std::vector<double> loads = wave(static_cast<std::size_t>(steps), 0.0);
  std::vector<double> scaled = g.pr;
  for (double& x : scaled) x *= 1e4;
  ModalRun product(m, loads);
  product.add(matrixHandle(1, g.n, g.jc, g.ir, scaled));
  product.start();
  LoopState loop(m);
  std::vector<double> f(static_cast<std::size_t>(g.n));
  const auto loopRun = [&] {
    const NewmarkCoefficients k = loop.coefficients;
    for (const double load : loads) {
      newmarkPredict(loop.u.data(), loop.v.data(), loop.a.data(), g.n, k);
      for (std::size_t i = 0; i < f.size(); ++i) {
        double sum = 0.0;
        for (int e = g.jc[i]; e < g.jc[i + 1]; ++e) {
          sum += scaled[static_cast<std::size_t>(e)] * loop.u[static_cast<std::size_t>(g.ir[static_cast<std::size_t>(e)])];
        }
        f[i] = loop.shape[i] * load + sum;
      }
      newmarkCorrect(loop.u.data(), loop.v.data(), loop.a.data(), f.data(), loop.gain.data(), g.n, k);
    }
  };
  Case c{"handles", "sparse K, 7 a line", g.n, static_cast<double>(g.n) * steps, "mode and step", 1e-9, {}};
  c.programs.push_back({"C loop", loopRun, [&] {
                          loop.reset();
                          loopRun();
                          return loop.state();
                        }});
  c.programs.push_back({"quarn", [&] { product.run(); }, [&] { return fresh(product); }, g.n > 1000});
  run(c);
}

/// 100 modes with diagonal stiffness and damping and count elements of one value or group each. The laws stand side by side in one table,
/// as programs do elsewhere.
void withElements(const std::string& law, int count) {
  const Modes m = spreadModes(100);
  const std::vector<double> loads = wave(100, 0.0);
  const LoopState loop(m);
  ModalRun product(m, loads);
  product.add(diagonalHandle(1, loop.k));
  product.add(diagonalHandle(3, loop.c));
  for (int e = 0; e < count; ++e) product.add(element(law, 1, m.n, e % (m.n - 5)));
  product.start();
  run({"handles", "elements", count, 100.0 * count, "handle and step", 0.0, {{law, [&] { product.run(); }, {}}}});
}

/// The arithmetic of count cubic springs, one a mode, without any handle: observe u and v, power, add.
void cubicSprings(int count) {
  const Modes m = spreadModes(100);
  const std::vector<double> loads = wave(100, 0.0);
  LoopState loop(m);
  std::vector<double> f(100);
  std::vector<double> seen(2);
  const auto loopRun = [&] {
    const NewmarkCoefficients k = loop.coefficients;
    for (const double load : loads) {
      newmarkPredict(loop.u.data(), loop.v.data(), loop.a.data(), m.n, k);
      for (std::size_t i = 0; i < f.size(); ++i) f[i] = loop.shape[i] * load + loop.k[i] * loop.u[i] + loop.c[i] * loop.v[i];
      for (int e = 0; e < count; ++e) {
        const auto at = static_cast<std::size_t>(e % 95);
        seen[0] = loop.v[at];
        seen[1] = loop.u[at];
        use(seen.data());
        f[at] += 0.5 * std::pow(seen[1], 3.0);
      }
      newmarkCorrect(loop.u.data(), loop.v.data(), loop.a.data(), f.data(), loop.gain.data(), m.n, k);
    }
  };
  ModalRun product(m, loads);
  product.add(diagonalHandle(1, loop.k));
  product.add(diagonalHandle(3, loop.c));
  for (int e = 0; e < count; ++e) product.add(element("Power", 1, m.n, e % 95));
  product.start();
  Case c{"handles", "cubic springs", count, 100.0 * count, "handle and step", 1e-9, {}};
  c.programs.push_back({"C loop", loopRun, [&] {
                          loop.reset();
                          loopRun();
                          return loop.state();
                        }});
  c.programs.push_back({"quarn", [&] { product.run(); }, [&] { return fresh(product); }});
  run(c);
}

}  // namespace

void benchHandles() {
  for (const int n : {4, 10, 100, 1'000, 10'000, 100'000}) {
    if (quick() && n > 100) break;
    diagonalSystem(n, n < 1000 ? 1000 : 100);
    if (n > 4) sparseSystem(n, 100);
  }
  for (const int count : {1, 10, 100, 1'000}) {
    if (quick() && count > 10) break;
    cubicSprings(count);
    for (const std::string& law : lawNames()) withElements(law, count);
  }
}

}  // namespace quarn::bench
