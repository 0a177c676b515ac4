// Borrowed views of the matrices that callers pass.
#pragma once

#include <cstddef>

#include "host/arrays.h"

namespace quarn {

/// A matrix argument in line-compressed form, borrowed from host arrays for the call, or for the life of a handle's value.
///
/// The three arrays store a matrix S column by column: line i is column i of S, its entries are k = jc[i] ... jc[i+1]-1 with
/// row numbers ir[k] and values pr[k], all 0-based. trans = 0: rows x cols are the dimensions of S. trans = 1: the view stands
/// for the operator S', rows x cols are the dimensions of S', and S has rows lines. ir null with pr set is a dense
/// column-major matrix; all three null is no matrix.
struct SparseView {
  int* ir = nullptr;
  int* jc = nullptr;
  double* pr = nullptr;
  int rows = 0;
  int cols = 0;
  int trans = 0;
  // How many values the three arrays hold, for the checks.
  std::size_t irLen = 0;
  std::size_t jcLen = 0;
  std::size_t prLen = 0;
  /// Reached through an object, whose data others may share and change.
  bool throughObject = false;
  /// The values are the real part of a complex array: to be read only, see host::doubles.
  bool realPart = false;

  bool sparse() const { return ir != nullptr; }
  /// Lines of the stored matrix S.
  int lines() const { return trans == 1 ? rows : cols; }
};

/// View of a: a full double matrix, a struct with "pr" and, as needed, "ir", "jc" (int32), "dims", "trans", or a "v_handle"
/// object whose field "file" holds one of these. Without "dims" the matrix is square with rows("jc") - 1 lines; without "pr"
/// there is no matrix and rows and cols are 0. Null is no matrix.
/// Raises "ir must be int32" for a native sparse matrix; refuses other classes, naming the argument.
SparseView sparseView(const mxArray* a, const char* name);

/// Writable doubles of a: the data of a full double array, or, for an object, the buffer whose address is the first 64-bit word
/// of its property "c". The length of such a buffer is not known and taken as unlimited: its owner answers for it.
host::Doubles pmatDoubles(const mxArray* a, const char* name);

}  // namespace quarn
