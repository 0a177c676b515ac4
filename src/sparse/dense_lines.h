// Lines that are dense vectors: the row of an element in modal coordinates has an entry for every mode.
//
// A line is full when its indices run consecutively from the first to the last, and are eight or more. Its sum has the bits of every other
// line (line_sums.h says in which order), without a look at the indices.
#pragma once

#include "numbers/processor.h"

namespace quarn {

/// Least entries of a full line.
constexpr int kFullEntries = 8;

/// Whether the n indices are those of a full line.
inline bool isFull(int n, const int* ir) {
  if (n < kFullEntries || ir[n - 1] - static_cast<long long>(ir[0]) != n - 1) return false;
  int broken = 0;
  for (int k = 1; k < n; ++k) broken |= ir[k] ^ (ir[k - 1] + 1);
  return broken == 0;
}

/// y[i] = 0 + sum of row i and x, for rows of n values each that follow each other in pr; x: n values, y: rows values (out).
/// y may overlap neither x nor pr.
void denseSums(int rows, int n, const double* pr, const double* x, double* y);

/// The same for two vectors in one pass over the rows: yu for u, yv for v.
void denseSumsOfTwo(int rows, int n, const double* pr, const double* u, double* yu, const double* v, double* yv);

/// The sum of one full line.
inline double denseSum(int n, const double* pr, const double* x) {
  double y;
  denseSums(1, n, pr, x, &y);
  return y;
}

/// y[k] += 0 + f[0] * row_0[k] + f[1] * row_1[k] + ..., k < n, the sum of the products first. Row i begins at pr + starts[i]; rows without
/// entries (starts[i] == starts[i + 1]) and rows with f[i] == 0 are left out. y (in-out) may overlap neither f nor pr.
void addDenseRows(int rows, int n, const int* starts, const double* pr, const double* f, double* y);

/// y[k] += 0 + f * row[k], k < n, also for f == 0. y (in-out) may not overlap row.
void addDenseRow(int n, const double* row, double f, double* y);

}  // namespace quarn
