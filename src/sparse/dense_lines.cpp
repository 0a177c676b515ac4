#include "sparse/dense_lines.h"

#include <cstddef>
#include <cstring>

namespace quarn {

namespace {

constexpr int kSums = 8;
/// The partial sums of a line, side by side; a compiler splits them where the processor's registers are shorter.
using Sums [[gnu::vector_size(kSums * sizeof(double))]] = double;

[[gnu::always_inline]] inline void load(Sums& to, const double* from) { std::memcpy(&to, from, sizeof to); }

[[gnu::always_inline]] inline double total(const double* s) {
  const double t0 = s[0] + s[4];
  const double t1 = s[1] + s[5];
  const double t2 = s[2] + s[6];
  const double t3 = s[3] + s[7];
  return (t0 + t2) + (t1 + t3);
}

/// The sums of Rows rows with Vectors vectors: y[v][i] for row i. They are independent, and keep the processor busy together.
template <int Rows, int Vectors>
[[gnu::always_inline]] inline void sumTogether(int n, const double* pr, const double* const* x, double* const* y, int first) {
  Sums sum[Rows][Vectors] = {};
  int k = 0;
  for (; k + kSums <= n; k += kSums) {
    Sums part[Vectors];
    for (int v = 0; v < Vectors; ++v) load(part[v], x[v] + k);
    for (int i = 0; i < Rows; ++i) {
      Sums row;
      load(row, pr + static_cast<std::ptrdiff_t>(i) * n + k);
      for (int v = 0; v < Vectors; ++v) sum[i][v] += row * part[v];
    }
  }
  for (int i = 0; i < Rows; ++i) {
    const double* rest = pr + static_cast<std::ptrdiff_t>(i) * n + k;
    for (int v = 0; v < Vectors; ++v) {
      double s[kSums];
      std::memcpy(s, &sum[i][v], sizeof s);
      for (int j = 0; j < n - k; ++j) s[j] += rest[j] * x[v][k + j];
      y[v][first + i] = 0.0 + total(s);
    }
  }
}

template <int Rows, int Vectors>
[[gnu::always_inline]] inline void sumRows(int rows, int n, const double* pr, const double* const* x, double* const* y) {
  int i = 0;
  for (; i + Rows <= rows; i += Rows) sumTogether<Rows, Vectors>(n, pr + static_cast<std::ptrdiff_t>(i) * n, x, y, i);
  for (; i < rows; ++i) sumTogether<1, Vectors>(n, pr + static_cast<std::ptrdiff_t>(i) * n, x, y, i);
}

/// Columns values of y from place at on, with the products of all rows: few enough of them to stay in registers.
template <int Columns>
[[gnu::always_inline]] inline void addColumns(int rows, const int* starts, const double* pr, const double* f, double* y, int at) {
  double sum[Columns] = {};
  for (int i = 0; i < rows; ++i) {
    const double p = f[i];
    if (p == 0.0 || starts[i] == starts[i + 1]) continue;
    const double* row = pr + starts[i] + at;
    for (int k = 0; k < Columns; ++k) sum[k] += p * row[k];
  }
  for (int k = 0; k < Columns; ++k) y[at + k] += sum[k];
}

[[gnu::always_inline]] inline void addOneRow(int n, const double* __restrict row, double p, double* __restrict y) {
  for (int k = 0; k < n; ++k) y[k] += 0.0 + p * row[k];
}

}  // namespace

QUARN_PROCESSOR_VERSIONS
void denseSums(int rows, int n, const double* pr, const double* x, double* y) {
  const double* const vectors[] = {x};
  double* const sums[] = {y};
  sumRows<4, 1>(rows, n, pr, vectors, sums);
}

QUARN_PROCESSOR_VERSIONS
void denseSumsOfTwo(int rows, int n, const double* pr, const double* u, double* yu, const double* v, double* yv) {
  const double* const vectors[] = {u, v};
  double* const sums[] = {yu, yv};
  sumRows<2, 2>(rows, n, pr, vectors, sums);
}

QUARN_PROCESSOR_VERSIONS
void addDenseRows(int rows, int n, const int* starts, const double* pr, const double* f, double* y) {
  if (rows == 1) {
    if (f[0] != 0.0 && starts[0] != starts[1]) addOneRow(n, pr + starts[0], f[0], y);
    return;
  }
  int at = 0;
  for (; at + 32 <= n; at += 32) addColumns<32>(rows, starts, pr, f, y, at);
  for (; at + 8 <= n; at += 8) addColumns<8>(rows, starts, pr, f, y, at);
  for (; at < n; ++at) addColumns<1>(rows, starts, pr, f, y, at);
}

}  // namespace quarn
