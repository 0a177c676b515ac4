// What the checks of arguments take of the work that they guard: the whole, its parts.
#include "guards.h"

#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "sparse/line_checks.h"
#include "sparse/projection_kernels.h"
#include "sparse/sp_tbb.h"

namespace quarn::bench {

void parts(const std::string& variant, long long size, bool threaded, const std::vector<Part>& all) {
  Case c{"guards", variant, size, 1.0, "run", 0.0, {}};
  for (const auto& [name, work] : all) c.programs.push_back({name, work, {}, threaded});
  run(c);
}

namespace {

SparseView viewOf(GridMatrix& g) { return {g.ir.data(), g.jc.data(), g.pr.data(), g.n, g.n, 0, g.ir.size(), g.jc.size(), g.pr.size()}; }

/// 27 entries a line.
void oneShot(int lines) {
  GridMatrix g = gridMatrix(27, lines);
  const SparseView v = viewOf(g);
  const auto n = static_cast<std::size_t>(g.n);
  const std::vector<double> x = wave(n, 1.0);
  std::vector<double> y(n);
  const auto pointers = [&] { checkLinePointers(v, g.n, "K"); };
  parts("product of one call", g.n, g.n > 1000,
        {{"whole",
          [&] {
            pointers();
            SparseMatVecTested(y.data(), x.data(), v.pr, v.ir, v.jc, g.n, static_cast<unsigned>(n));
          }},
         {"checks before", pointers},
         {"without any check", [&] { SparseMatVec(y.data(), x.data(), v.pr, v.ir, v.jc, g.n); }}});
  for (const std::size_t cols : {1, 10}) {
    const std::vector<double> t = wave(n * cols, 1.0);
    const DenseBase base{t.data(), nullptr, n, cols};
    std::vector<double> out(cols * cols);
    std::vector<double> work(bilinearWork(cols, cols));
    const auto check = [&] { checkLines(v, g.n, n, "K", "TB"); };
    const auto forms = [&] { bilinearForms(out.data(), nullptr, base, base, {v.ir, v.jc, v.pr}, n, work.data()); };
    parts("abc, " + std::to_string(cols) + " columns", g.n, false,
          {{"whole",
            [&] {
              check();
              forms();
            }},
           {"checks before", check}});
  }
}

}  // namespace

void benchGuards() {
  for (const int lines : {1'000, 10'000, 100'000}) {
    if (quick() && lines > 1000) break;
    oneShot(lines);
  }
  benchHandleGuards();
}

}  // namespace quarn::bench
