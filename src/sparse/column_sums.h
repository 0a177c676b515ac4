// Sums of lines with several columns of a dense matrix, four columns side by side.
#pragma once

#include <cstddef>

namespace quarn {

/// Lines of a matrix: line i has the values pr[k] at the positions ir[k], k = jc[i] ... jc[i+1]-1.
struct SparseLines {
  const int* ir;
  const int* jc;
  const double* pr;
};

/// Neighbouring columns of a dense matrix that begin ld values apart.
struct Columns {
  const double* values;
  std::size_t ld;
  std::size_t count;
};

/// g[l * ldG + j] = lineSum of line first + l and column j, for l < lines: the same bits. g (out) must not overlap the columns.
void columnSums(double* g, std::size_t ldG, const SparseLines& s, std::size_t first, std::size_t lines, const Columns& columns);

}  // namespace quarn
