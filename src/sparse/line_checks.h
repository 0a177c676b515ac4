// What the kernels trust is established here, once, before they run.
#pragma once

#include "sparse/sparse_view.h"

namespace quarn {

/// For texts about an index of a matrix: that a handle has put its diagonal marker there, or nothing.
const char* diagonalMarker(const SparseView& v);

/// Refuses line pointers that are missing, too few for the lines, not ascending, or that reach past "ir" or "pr".
void checkLinePointers(const SparseView& v, int lines, const char* name);

/// Largest index of the first lines lines, -1 if they hold none; refuses a negative one (a matrix with the diagonal marker
/// carries -1 in its first place). The line pointers must have been checked.
int largestIndex(const SparseView& v, int lines, const char* name);

/// Refuses a vector that is shorter than the largest index needs.
void checkGather(int largest, std::size_t vectorLen, const char* matrixName, const char* vectorName);

/// Both checks of the matrix, and the vector it is to be multiplied with: nothing remains to go wrong in a product.
void checkLines(const SparseView& v, int lines, std::size_t vectorLen, const char* matrixName, const char* vectorName);

/// Refuses a dense view whose data does not hold rows x cols values.
void checkDense(const SparseView& v, const char* name);

/// Refuses an array that holds fewer values than a kernel is going to use.
void checkLength(std::size_t have, long long need, const char* name, const char* why);

}  // namespace quarn
