// Loops of the transposed sum and product of a small matrix with a vector.
#pragma once

#include "sparse/line_sums.h"

namespace quarn {

/// y[i] += line i . u, i < rows.
inline void addGathered(int rows, const int* ir, const int* jc, const double* pr, const double* u, double* y) {
  for (int i = 0; i < rows; ++i) y[i] += lineSum(jc[i + 1] - jc[i], pr + jc[i], ir + jc[i], u);
}

/// y[j] += sum of u[i] * line i over the rows lines, j < cols, the sum first. work: cols values, contents lost.
void addScattered(int rows, int cols, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work);

/// addScattered for a matrix that touches few of its columns, into a y without negative zeros (-0 + 0 would make them 0): there the sums
/// of the other columns, which are 0, change nothing. work: a value for each column, all zero before and after.
void addScatteredTouched(int rows, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work);

// Matrices whose lines have a single entry or none, each for one degree of freedom.

/// Whether no line has more than one entry.
bool singleEntries(int lines, const int* jc);
/// Whether no two of n indices are the same. marks: a value for each column, all zero before and after.
bool distinct(int n, const int* ir, double* marks);

/// Their product, assigned: y[i] = line i . x. y must overlap neither x nor pr.
inline void gatherSingles(int lines, const int* ir, const int* jc, const double* pr, const double* x, double* y) {
  for (int i = 0; i < lines; ++i) {
    const int k = jc[i];
    y[i] = jc[i + 1] > k ? 0.0 + pr[k] * x[ir[k]] : 0.0;
  }
}

/// Their transposed product with u, added to y: y[j] += 0 + u[i] * entry, for lines with distinct indices. As in a sparse axpy, a force of
/// zero adds nothing, whatever it is multiplied with. y must overlap neither u nor pr.
inline void scatterSingles(int lines, const int* ir, const int* jc, const double* pr, const double* u, double* y) {
  for (int i = 0; i < lines; ++i) {
    const int k = jc[i];
    if (jc[i + 1] > k && u[i] != 0.0) y[ir[k]] += 0.0 + u[i] * pr[k];
  }
}

}  // namespace quarn
