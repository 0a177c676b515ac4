// Operands of the matrix commands.
#pragma once

#include <cstddef>

#include "host/arrays.h"
#include "host/mex_api.h"
#include "sparse/projection_kernels.h"

namespace quarn {

/// Argument k of a call, counted from the command word; null where the call has fewer.
inline const mxArray* argument(int nrhs, const mxArray* prhs[], int k) { return k < nrhs ? prhs[k] : nullptr; }

/// A sparse matrix of the host's own kind (64-bit indices), as opposed to a matrix structure.
inline bool isNativeSparse(const mxArray* a) { return a && mxIsSparse(a); }

/// Real and imaginary data of a full double matrix; refuses every other class. Without elements both are null.
DenseBase denseBase(const mxArray* a, const char* name);

/// Refuses a count of rows x cols values (of up to 16 bytes) that no memory can hold; returns the count.
std::size_t checkedCount(std::size_t rows, std::size_t cols, const char* name);

/// A new rows x cols double matrix of zeros; sizes that no memory can hold are refused.
mxArray* zeros(std::size_t rows, std::size_t cols, mxComplexity complexity);

}  // namespace quarn
