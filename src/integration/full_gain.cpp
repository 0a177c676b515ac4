#include "integration/full_gain.h"

#include <algorithm>
#include <cstddef>

#include "numbers/processor.h"

namespace quarn {

namespace {

/// Rows whose sums are formed together: they stay in the first-level cache while the columns pass.
constexpr int kRows = 256;
/// Columns that are added in one pass over the rows.
constexpr int kColumns = 8;

/// d = the first n rows of gain times f. Rows are independent entries, so that every processor gives the same bits.
[[gnu::always_inline]] inline void gainProduct(double* __restrict d, const double* __restrict gain, std::ptrdiff_t ld,
                                               const double* __restrict f, int columns, int n) {
  for (int i = 0; i < n; ++i) d[i] = 0.0;
  int j = 0;
  for (; j + kColumns <= columns; j += kColumns) {
    const double* __restrict g = gain + ld * j;
    const double* __restrict x = f + j;
    for (int i = 0; i < n; ++i) {
      double sum = d[i];
      sum += g[i] * x[0];
      sum += g[i + ld] * x[1];
      sum += g[i + 2 * ld] * x[2];
      sum += g[i + 3 * ld] * x[3];
      sum += g[i + 4 * ld] * x[4];
      sum += g[i + 5 * ld] * x[5];
      sum += g[i + 6 * ld] * x[6];
      sum += g[i + 7 * ld] * x[7];
      d[i] = sum;
    }
  }
  for (; j < columns; ++j) {
    const double* __restrict g = gain + ld * j;
    const double x = f[j];
    for (int i = 0; i < n; ++i) d[i] += g[i] * x;
  }
}

QUARN_PROCESSOR_VERSIONS
void correct(double* __restrict u, double* __restrict v, double* __restrict a, const double* __restrict f, int columns,
             const double* __restrict gain, int n, const NewmarkCoefficients& k) {
  const double vFromD = k.vFromD;
  const double aFromD = k.aFromD;
  double d[kRows];
  for (int first = 0; first < n; first += kRows) {
    const int rows = std::min(kRows, n - first);
    gainProduct(d, gain + first, n, f, columns, rows);
    for (int i = 0; i < rows; ++i) {
      u[first + i] -= d[i];
      v[first + i] -= vFromD * d[i];
      a[first + i] -= d[i] * aFromD;
    }
  }
}

}  // namespace

void newmarkCorrectFull(double* u, double* v, double* a, const double* f, const double* gain, int n, const NewmarkCoefficients& k) {
  correct(u, v, a, f, n, gain, n, k);
}

void newmarkCorrectBetween(double* u, double* v, double* a, const double* f, const double* pages, double weight, double* work, int n,
                           const NewmarkCoefficients& k) {
  for (int i = 0; i < n; ++i) work[i] = (1.0 - weight) * f[i];
  for (int i = 0; i < n; ++i) work[n + i] = weight * f[i];
  correct(u, v, a, work, 2 * n, pages, n, k);
}

}  // namespace quarn
