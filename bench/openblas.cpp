#include "openblas.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>

#include "numbers/processor.h"

namespace quarn::bench {

namespace {

constexpr std::size_t block = 8;

/// (order, transA, transB, m, n, k, alpha, A, lda, B, ldb, beta, C, ldc)
using Dgemm = void (*)(int, int, int, int, int, int, double, const double*, int, const double*, int, double, double*, int);
constexpr int columnMajor = 102;
constexpr int plain = 111;
constexpr int transposed = 112;

/// Loaded at run time and bound to itself: the program is linked with another BLAS that has the same names.
Dgemm load() {
  void* library = dlopen("libopenblas.so.0", RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  void* gemm = library ? dlsym(library, "cblas_dgemm") : nullptr;
  if (!gemm) {
    std::fprintf(stderr, "projections: OpenBLAS is left out: %s\n", dlerror());
    return nullptr;
  }
  if (void* threads = dlsym(library, "openblas_set_num_threads")) reinterpret_cast<void (*)(int)>(threads)(1);
  return reinterpret_cast<Dgemm>(gemm);
}

Dgemm dgemm() {
  static const Dgemm loaded = load();
  return loaded;
}

/// kt = A*T for `wide` columns of T, which lie row by row in rows (n x block).
QUARN_PROCESSOR_VERSIONS
void timesColumns(double* __restrict kt, const double* __restrict rows, const int* ir, const int* jc, const double* pr, std::size_t n,
                  std::size_t wide) {
  for (std::size_t i = 0; i < n; ++i) {
    double sum[block] = {};
    for (int k = jc[i]; k < jc[i + 1]; ++k) {
      const double* row = rows + block * static_cast<std::size_t>(ir[k]);
      for (std::size_t c = 0; c < block; ++c) sum[c] += pr[k] * row[c];
    }
    for (std::size_t c = 0; c < wide; ++c) kt[i + c * n] = sum[c];
  }
}

}  // namespace

bool openblasThere() { return dgemm() != nullptr; }

void openblasForm(double* out, const GridMatrix& a, const std::vector<double>& t, std::vector<double>& work) {
  const auto n = static_cast<std::size_t>(a.n);
  const std::size_t cols = t.size() / n;
  double* kt = work.data();
  double* rows = kt + n * cols;
  for (std::size_t first = 0; first < cols; first += block) {
    const std::size_t wide = std::min(block, cols - first);
    std::fill(rows, rows + n * block, 0.0);
    for (std::size_t c = 0; c < wide; ++c) {
      for (std::size_t i = 0; i < n; ++i) rows[i * block + c] = t[i + (first + c) * n];
    }
    timesColumns(kt + first * n, rows, a.ir.data(), a.jc.data(), a.pr.data(), n, wide);
  }
  const int m = static_cast<int>(cols);
  dgemm()(columnMajor, transposed, plain, m, m, a.n, 1.0, t.data(), a.n, kt, a.n, 0.0, out, m);
}

}  // namespace quarn::bench
