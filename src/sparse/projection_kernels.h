// Products of a sparse matrix with the columns of dense bases.
//
// Each line of the matrix is read once and carried through all columns while it is in cache; each line product is formed once.
// The bits are those of one lineSum per line and column and of sums over the lines in ascending order. All arguments are
// borrowed and trusted: line pointers and indices must have been checked.
#pragma once

#include <cstddef>

#include "sparse/column_sums.h"

namespace quarn {

/// Columns of a dense matrix with rows x cols values, column after column; im is null for a real one.
struct DenseBase {
  const double* re = nullptr;
  const double* im = nullptr;
  std::size_t rows = 0;
  std::size_t cols = 0;
};

/// P(j, i) = line i . re(a(:, j)), assigned. p (out): a.cols x lines, must overlap neither the base nor the values.
void projectLines(double* p, const DenseBase& a, const SparseLines& s, std::size_t lines);

/// Doubles of work memory that bilinearForms needs for bases of nA and nB columns; about twice the output.
std::size_t bilinearWork(std::size_t nA, std::size_t nB);

/// For all pairs of columns i of a and j of b, phi1tmphi2_mkl (a(:,i), b(:,j)) over the first n lines, stored at i + j*b.cols
/// (i outer, j inner: where two pairs meet in one place, the larger i stays).
/// outR, outI (out): a.cols x b.cols values with a.cols >= b.cols; outI is null exactly if both bases are real.
/// work: bilinearWork(a.cols, b.cols) doubles, contents lost.
void bilinearForms(double* outR, double* outI, const DenseBase& a, const DenseBase& b, const SparseLines& s, std::size_t n, double* work);

}  // namespace quarn
