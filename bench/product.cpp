// The parallel sparse product against the loop it parallelises, a plain C loop, MKL, Eigen and memory bandwidth.
#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "product_peers.h"
#include "sparse/blas.h"
#include "sparse/sp_tbb.h"

namespace quarn::bench {

namespace {

void dotLoop(const GridMatrix& g, const double* x, double* y) {
  for (int i = 0; i < g.n; ++i) {
    const int k = g.jc[static_cast<std::size_t>(i)];
    y[i] += cblas_ddoti(g.jc[static_cast<std::size_t>(i) + 1] - k, g.pr.data() + k, g.ir.data() + k, x);
  }
}

void plainLoop(const GridMatrix& g, const double* x, double* y) {
  const int* jc = g.jc.data();
  const int* ir = g.ir.data();
  const double* pr = g.pr.data();
  for (int i = 0; i < g.n; ++i) {
    double sum = 0.0;
    for (int k = jc[i]; k < jc[i + 1]; ++k) sum += pr[k] * x[ir[k]];
    y[i] += sum;
  }
}

/// Adds a program that accumulates A*x into y.
void add(Case& c, const std::string& name, std::vector<double>& y, const std::function<void(double*)>& product, bool threaded,
         const std::function<void()>& release = {}) {
  c.programs.push_back({name, [&y, product] { product(y.data()); },
                        [&y, product] {
                          std::vector<double> fresh(y.size(), 0.5);
                          product(fresh.data());
                          return fresh;
                        },
                        threaded, release});
}

void oneMatrix(const std::string& variant, const GridMatrix& g) {
  const std::vector<double> x = wave(static_cast<std::size_t>(g.n), 1.0);
  std::vector<double> y(x.size());
  Case c{"product", variant, g.n, g.bytes(), "byte", 1e-13, {}};
  add(
      c, "quarn", y, [&](double* out) { SparseMatVec(out, x.data(), g.pr.data(), g.ir.data(), g.jc.data(), g.n); }, g.n > 1000);
  add(
      c, "quarn, indices tested", y,
      [&](double* out) { SparseMatVecTested(out, x.data(), g.pr.data(), g.ir.data(), g.jc.data(), g.n, static_cast<unsigned>(g.n)); },
      g.n > 1000);
  add(
      c, "serial ddoti loop", y, [&](double* out) { dotLoop(g, x.data(), out); }, false);
  add(
      c, "plain C loop", y, [&](double* out) { plainLoop(g, x.data(), out); }, false);
  const auto peers = productPeers(g);
  for (const ProductPeer& p : peers)
    add(
        c, p.name, y, [&](double* out) { p.product(x.data(), out); }, p.threaded, p.release);
  // The triad moves as many bytes as the product, through as many threads.
  const std::shared_ptr<Triad> triad = makeTriad(g.bytes());
  c.programs.push_back({"triad, 8 threads", [triad] { triad->run(); }, {}, true});
  run(c);
}

/// Memory that programs can have without swapping [bytes].
double availableMemory() {
  std::ifstream file("/proc/meminfo");
  for (std::string line; std::getline(file, line);) {
    double kilobytes = 0.0;
    if (std::sscanf(line.c_str(), "MemAvailable: %lf kB", &kilobytes) == 1) return 1024.0 * kilobytes;
  }
  return 0.0;
}

/// The largest matrix has 3 GB, a peer's copy of it more than 5.
bool fits(int entries, int lines) {
  constexpr double needed = 10e9;
  if (static_cast<double>(entries) * lines < 2e8 || availableMemory() >= needed) return true;
  std::fprintf(stderr, "product: %d lines with %d entries left out, %.0f GB of free memory needed, %.1f there\n", lines, entries,
               needed / 1e9, availableMemory() / 1e9);
  return false;
}

}  // namespace

void benchProduct() {
  constexpr int entries[] = {7, 27, 81};
  for (const int e : entries) {
    for (const int lines : {100, 300, 1'000, 3'000, 10'000, 30'000, 100'000, 300'000, 1'000'000, 3'000'000}) {
      if (quick() && lines > 3000) break;
      if (fits(e, lines)) oneMatrix(std::to_string(e), gridMatrix(e, lines));
    }
    for (const int lines : {3'000, 10'000, 100'000, 1'000'000}) {
      if (quick() && lines > 3000) break;
      oneMatrix(std::to_string(e) + ", irregular", irregular(gridMatrix(e, lines), e == 81 ? 3 : 1));
    }
  }
}

}  // namespace quarn::bench
