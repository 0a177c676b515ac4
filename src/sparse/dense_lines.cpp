#include "sparse/dense_lines.h"

#include <cstddef>
#include <cstring>

#include "numbers/vectors.h"

namespace quarn {

namespace {

/// Partial sums of a line, side by side in vectors.
constexpr int kSums = 8;

/// Adds the first n products, n < 4, and zeros: a partial sum is never a negative zero, so that they leave it as it is.
[[gnu::always_inline]] inline void addFew(Doubles4& sums, int n, const double* a, const double* b) {
  switch (n) {
    case 1:
      sums += Doubles4{a[0] * b[0], 0.0, 0.0, 0.0};
      break;
    case 2:
      sums += Doubles4{a[0] * b[0], a[1] * b[1], 0.0, 0.0};
      break;
    case 3:
      sums += Doubles4{a[0] * b[0], a[1] * b[1], a[2] * b[2], 0.0};
      break;
    default:
      break;
  }
}

/// The values of v from number first on, as many as part has.
template <int first, class Part, class Vector>
[[gnu::always_inline]] inline void take(Part& part, const Vector& v) {
#if __has_builtin(__builtin_shufflevector)
  if constexpr (sizeof(Part) == 4 * sizeof(double)) {
    part = __builtin_shufflevector(v, v, first, first + 1, first + 2, first + 3);
  } else {
    part = __builtin_shufflevector(v, v, first, first + 1);
  }
#else
  std::memcpy(&part, reinterpret_cast<const char*>(&v) + first * sizeof(double), sizeof part);
#endif
}

/// Partial sums 0 to 3, and 4 to 7.
[[gnu::always_inline]] inline void halves(const Doubles8* sums, Doubles4& low, Doubles4& high) {
  take<0>(low, sums[0]);
  take<4>(high, sums[0]);
}
[[gnu::always_inline]] inline void halves(const Doubles4* sums, Doubles4& low, Doubles4& high) {
  low = sums[0];
  high = sums[1];
}
[[gnu::always_inline]] inline void halves(const Doubles2* sums, Doubles4& low, Doubles4& high) {
  low = Doubles4{sums[0][0], sums[0][1], sums[1][0], sums[1][1]};
  high = Doubles4{sums[2][0], sums[2][1], sums[3][0], sums[3][1]};
}

/// The sum of a line from its partial sums and its last n entries, n < 8.
template <class Vector>
[[gnu::always_inline]] inline double total(const Vector* sums, int n, const double* row, const double* x) {
  Doubles4 low;
  Doubles4 high;
  halves(sums, low, high);
  if (n >= 4) {
    Doubles4 a;
    Doubles4 b;
    load(a, row);
    load(b, x);
    low += a * b;
    addFew(high, n - 4, row + 4, x + 4);
  } else {
    addFew(low, n, row, x);
  }
  const Doubles4 t = low + high;
  Doubles2 first;
  Doubles2 second;
  take<0>(first, t);
  take<2>(second, t);
  const Doubles2 two = first + second;
  return two[0] + two[1];
}

/// The sums of Rows rows with Vectors vectors: y[v][i] for row i. They are independent, and keep the processor busy together.
template <class Vector, int Rows, int Vectors>
[[gnu::always_inline]] inline void sumTogether(int n, const double* pr, const double* const* x, double* const* y, int first) {
  constexpr std::ptrdiff_t length = sizeof(Vector) / sizeof(double);
  constexpr int parts = kSums / length;
  Vector sum[Rows][Vectors][parts] = {};
  int k = 0;
  for (; k + kSums <= n; k += kSums) {
    for (int p = 0; p < parts; ++p) {
      Vector part[Vectors];
      for (int v = 0; v < Vectors; ++v) load(part[v], x[v] + k + p * length);
      for (int i = 0; i < Rows; ++i) {
        Vector row;
        load(row, pr + static_cast<std::ptrdiff_t>(i) * n + k + p * length);
        for (int v = 0; v < Vectors; ++v) sum[i][v][p] += row * part[v];
      }
    }
  }
#pragma GCC unroll 4  // in a loop the sums would be in memory
  for (int i = 0; i < Rows; ++i) {
#pragma GCC unroll 2
    for (int v = 0; v < Vectors; ++v) {
      y[v][first + i] = 0.0 + total(sum[i][v], n - k, pr + static_cast<std::ptrdiff_t>(i) * n + k, x[v] + k);
    }
  }
}

template <class Vector, int Rows, int Vectors>
[[gnu::always_inline]] inline void sumRows(int rows, int n, const double* pr, const double* const* x, double* const* y) {
  int i = 0;
  for (; i + Rows <= rows; i += Rows) sumTogether<Vector, Rows, Vectors>(n, pr + static_cast<std::ptrdiff_t>(i) * n, x, y, i);
  for (; i < rows; ++i) sumTogether<Vector, 1, Vectors>(n, pr + static_cast<std::ptrdiff_t>(i) * n, x, y, i);
}

template <class Vector>
[[gnu::always_inline]] inline void sumOneRow(int n, const double* pr, const double* x, double* y) {
  sumTogether<Vector, 1, 1>(n, pr, &x, &y, 0);
}

// As many rows together as leave their sums in registers.
// NOLINTBEGIN(bugprone-macro-parentheses): attributes and types take none
#define QUARN_SUMS(version, Vector)                                                                                                \
  version void oneSum(int n, const double* pr, const double* x, double* y) { sumOneRow<Vector>(n, pr, x, y); }                     \
  version void sums(int rows, int n, const double* pr, const double* x, double* y) { sumRows<Vector, 4, 1>(rows, n, pr, &x, &y); } \
  version void sumsOfTwo(int rows, int n, const double* pr, const double* u, double* yu, const double* v, double* yv) {            \
    const double* const vectors[] = {u, v};                                                                                        \
    double* const results[] = {yu, yv};                                                                                            \
    sumRows<Vector, 2, 2>(rows, n, pr, vectors, results);                                                                          \
  }
// NOLINTEND(bugprone-macro-parentheses)
#ifdef QUARN_VERSION_BASE
QUARN_SUMS(QUARN_VERSION_BASE, Doubles2)
QUARN_SUMS(QUARN_VERSION_V3, Doubles4)
QUARN_SUMS(QUARN_VERSION_V4, Doubles8)
#elif defined(__AVX512F__)
QUARN_SUMS(, Doubles8)
#elif defined(__AVX__)
QUARN_SUMS(, Doubles4)
#else
QUARN_SUMS(, Doubles2)
#endif
#undef QUARN_SUMS

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

}  // namespace

void denseSums(int rows, int n, const double* pr, const double* x, double* y) {
  if (rows == 1) return oneSum(n, pr, x, y);
  sums(rows, n, pr, x, y);
}

void denseSumsOfTwo(int rows, int n, const double* pr, const double* u, double* yu, const double* v, double* yv) {
  sumsOfTwo(rows, n, pr, u, yu, v, yv);
}

QUARN_PROCESSOR_VERSIONS
void addDenseRow(int n, const double* __restrict row, double f, double* __restrict y) {
  for (int k = 0; k < n; ++k) y[k] += 0.0 + f * row[k];
}

QUARN_PROCESSOR_VERSIONS
void addDenseRows(int rows, int n, const int* starts, const double* pr, const double* f, double* y) {
  int at = 0;
  for (; at + 32 <= n; at += 32) addColumns<32>(rows, starts, pr, f, y, at);
  for (; at + 8 <= n; at += 8) addColumns<8>(rows, starts, pr, f, y, at);
  for (; at < n; ++at) addColumns<1>(rows, starts, pr, f, y, at);
}

}  // namespace quarn
