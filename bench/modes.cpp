// The integrator without forces of the state: its elementwise loops against one hand-written fused loop.
#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "modal_run.h"
#include "newmark_loops.h"

namespace quarn::bench {

namespace {

void oneSize(const char* variant, int n, int steps) {
  const Modes m = spreadModes(n);
  const std::vector<double> loads = wave(static_cast<std::size_t>(steps), 0.0);
  ModalRun product(m, loads);
  product.start();
  LoopState loop(m);
  const auto loopRun = [&] {
    for (const double load : loads) plainStep(loop, load);
  };
  Case c{"modes", variant, n, static_cast<double>(n) * steps, "mode and step", 1e-12, {}};
  c.programs.push_back({"fused C loop", loopRun, [&] {
                          loop.reset();
                          loopRun();
                          return loop.state();
                        }});
  c.programs.push_back({"quarn", [&] { product.run(); },
                        [&] {
                          product.start();
                          product.run();
                          return product.state();
                        }});
  run(c);
}

}  // namespace

void benchModes() {
  for (const int n : {4, 10, 30, 100, 300, 1'000, 3'000, 10'000, 30'000, 100'000}) {
    if (quick() && n > 100) break;
    oneSize("modes", n, n < 1000 ? 1000 : 100);
  }
  // Cost against the number of steps; the size is the number of steps here.
  for (const int steps : {100, 1'000, 10'000, 100'000}) {
    if (quick() && steps > 100) break;
    const Modes m = spreadModes(100);
    ModalRun product(m, wave(static_cast<std::size_t>(steps), 0.0));
    product.start();
    run({"modes", "steps, 100 modes", steps, static_cast<double>(steps), "step", 0.0, {{"quarn", [&] { product.run(); }, {}}}});
  }
}

}  // namespace quarn::bench
