// Table look-up: a slow sweep and random queries in tables of many sizes; the tabulated law with many observed values.
#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "elements.h"
#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "nonlinear/lin_interp.h"
#include "nonlinear/nl_inout.h"

namespace quarn::bench {

namespace {

/// The same interpolation with a search by halves for each query.
void halving(const std::vector<double>& table, const std::vector<double>& queries, std::vector<double>& out) {
  const std::size_t knots = table.size() / 2;
  const double* x = table.data();
  for (std::size_t q = 0; q < queries.size(); ++q) {
    const double at = queries[q];
    auto s = static_cast<std::size_t>(std::lower_bound(x, x + knots, at) - x);
    s = std::clamp<std::size_t>(s, 1, knots - 1) - 1;
    const double f = (at - x[s]) / (x[s + 1] - x[s]);
    out[q] = f * x[knots + s + 1] + (1.0 - f) * x[knots + s];
  }
}

void lookUp(const char* variant, int knots, const std::vector<double>& queries) {
  std::vector<double> table(2 * static_cast<std::size_t>(knots));
  for (std::size_t i = 0; i < static_cast<std::size_t>(knots); ++i) {
    table[i] = static_cast<double>(i) / (knots - 1);
    table[static_cast<std::size_t>(knots) + i] = std::sin(static_cast<double>(i));
  }
  std::vector<double> out(queries.size());
  double record[3] = {0.0, 0.0, 0.0};
  const int n = static_cast<int>(queries.size());
  Case c{"tables", variant, knots, static_cast<double>(n), "query", 1e-9, {}};
  const auto product = [&] { interpolateApart(table.data(), queries.data(), record, out.data(), knots, n, true); };
  const auto loop = [&] { halving(table, queries, out); };
  c.programs.push_back({"search by halves", loop, [&] {
                          loop();
                          return out;
                        }});
  c.programs.push_back({"quarn", product, [&] {
                          product();
                          return out;
                        }});
  run(c);
}

}  // namespace

void benchTables() {
  std::vector<double> sweep(1000);
  std::vector<double> random(1000);
  std::mt19937 generator(42);
  std::uniform_real_distribution<double> number(0.0, 1.0);
  for (std::size_t i = 0; i < sweep.size(); ++i) {
    sweep[i] = 0.5 + 0.5 * std::sin(2e-3 * M_PI * static_cast<double>(i));
    random[i] = number(generator);
  }
  for (const int knots : {10, 100, 1'000, 10'000, 100'000}) {
    if (quick() && knots > 100) break;
    lookUp("slow sweep", knots, sweep);
    lookUp("random queries", knots, random);
  }
  for (const int observed : {1, 10, 100, 1'000, 10'000}) {
    if (quick() && observed > 100) break;
    auto* h = static_cast<chandleNl_inout*>(element("Table", observed, 100, 0));
    h->initCpt();
    const std::vector<double> x = wave(static_cast<std::size_t>(observed), 0.0);
    std::copy(x.begin(), x.end(), h->unl);
    const ROr context;
    run({"tables",
         "law with many observed",
         observed,
         static_cast<double>(observed),
         "value",
         0.0,
         {{"quarn", [=] { h->law(h, context); }, {}}}});
  }
}

}  // namespace quarn::bench
