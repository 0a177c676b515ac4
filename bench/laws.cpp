// The force laws alone, over many observed values, against the bare formula in a C loop.
#include <algorithm>

#include "elements.h"
#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "law_loops.h"
#include "nonlinear/nl_inout.h"

namespace quarn::bench {

namespace {

constexpr int groups = 1000;

void fill(double* unl, double* vnl, std::size_t n) {
  const std::vector<double> x = wave(n, 0.5);
  for (std::size_t i = 0; i < n; ++i) {
    unl[i] = 0.9 + 0.1 * x[i];
    vnl[i] = 1e-9 * x[i];
  }
}

void oneLaw(const std::string& law) {
  auto* h = static_cast<chandleNl_inout*>(element(law, groups, 100, 0));
  h->initCpt();
  const auto n = static_cast<std::size_t>(h->unlLen);
  const ROr context;
  h->check(*h, context);
  fill(h->unl, h->vnl, n);
  Case c{"laws", law, groups, groups, "group", 1e-12, {}};
  c.programs.push_back({"quarn", [&] { h->law(h, context); },
                        [&] {
                          fill(h->unl, h->vnl, n);
                          h->law(h, context);
                          return std::vector<double>(h->snl, h->snl + n);
                        }});
  LawArrays a{std::vector<double>(n), std::vector<double>(n), std::vector<double>(n), std::vector<double>(h->opt, h->opt + h->optLen)};
  fill(a.unl.data(), a.vnl.data(), n);
  if (lawLoop(law, a)) {
    c.programs.push_back({"C loop", [&] { lawLoop(law, a); },
                          [&] {
                            fill(a.unl.data(), a.vnl.data(), n);
                            lawLoop(law, a);
                            return a.snl;
                          }});
  }
  run(c);
}

}  // namespace

void benchLaws() {
  for (const std::string& law : lawNames()) oneLaw(law);
}

}  // namespace quarn::bench
