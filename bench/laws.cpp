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
constexpr int evaluations = 5;  // before numbers are compared: states feed on each other

void fill(double* unl, double* vnl, std::size_t n) {
  const std::vector<double> x = wave(n, 0.5);
  for (std::size_t i = 0; i < n; ++i) {
    unl[i] = 0.9 + 0.05 * x[i];  // ways so short that hysteresis takes them in one part
    vnl[i] = 1e-9 * x[i];
  }
}

/// Forces and states.
std::vector<double> numbers(const double* snl, const double* unl, std::size_t n) {
  std::vector<double> all(snl, snl + n);
  all.insert(all.end(), unl, unl + n);
  return all;
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
                          for (int k = 0; k < evaluations; ++k) h->law(h, context);
                          return numbers(h->snl, h->unl, n);
                        }});
  // Committed values of the last element lie one place behind the third page.
  LawArrays a{n, std::vector<double>(3 * n + 1), std::vector<double>(3 * n + 1), std::vector<double>(n),
              std::vector<double>(h->opt, h->opt + h->optLen)};
  fill(a.unl.data(), a.vnl.data(), n);
  c.programs.push_back({"C loop", [&] { lawLoop(law, a); },
                        [&] {
                          fill(a.unl.data(), a.vnl.data(), n);
                          for (int k = 0; k < evaluations; ++k) lawLoop(law, a);
                          return numbers(a.snl.data(), a.unl.data(), n);
                        }});
  run(c);
}

}  // namespace

void benchLaws() {
  for (const std::string& law : lawNames()) oneLaw(law);
}

}  // namespace quarn::bench
