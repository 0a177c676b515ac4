// Parallel sparse matrix-vector product.
#pragma once

namespace quarn {

/// y[i] += sum of val[k] * x[ir[k]], k = jc[i] ... jc[i+1]-1, for the lines i = 0 ... n-1: one lineSum a line, lines in
/// parallel on 8 threads whatever the core count, on the calling thread where that is faster or 8 are not available. y (in-out) must
/// not overlap x. A null val is an absent matrix: nothing happens. The same bits as the serial loop. Trusts its arguments.
void SparseMatVec(double* y, const double* x, const double* val, const int* ir, const int* jc, int n);

/// The same on a matrix that has not been looked at: the indices of some lines at a time are tested against xLen before the lines are
/// summed. A line with an index outside adds nothing; the number of the first such line (0-based) is returned, -1 if there was none. The
/// line pointers must have been checked.
int SparseMatVecTested(double* y, const double* x, const double* val, const int* ir, const int* jc, int n, unsigned xLen);

/// Entries from which a product of more than 1,000 lines goes to the workers. Where they are still awake from the last product they are
/// worth while from a third of that; where they have to be woken, which takes some 50 microseconds, from twice that.
constexpr int parallelEntries = 100000;

}  // namespace quarn
