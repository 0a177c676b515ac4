#include "sparse/line_checks.h"

#include <algorithm>
#include <climits>

#include "host/errors.h"
#include "sparse/largest.h"

namespace quarn {

void checkLinePointers(const SparseView& v, int lines, const char* name) {
  if (lines <= 0) return;
  const auto n = static_cast<std::size_t>(lines);
  if (v.jcLen < n + 1) {
    host::refuse("%s : \"jc\" must hold %zu line pointers for %d lines, got %zu", name, n + 1, lines, v.jcLen);
  }
  if (v.jc[0] < 0) host::refuse("%s : \"jc\" must start at 0, got %d", name, v.jc[0]);
  for (std::size_t i = 0; i < n; ++i) {
    if (v.jc[i + 1] < v.jc[i]) {
      host::refuse("%s : \"jc\" must ascend, got %d after %d at position %zu", name, v.jc[i + 1], v.jc[i], i + 2);
    }
  }
  const std::size_t stored = std::min(v.irLen, v.prLen);
  if (static_cast<std::size_t>(v.jc[n]) > stored) {
    host::refuse("%s : \"jc\" ends at %d entries, \"ir\" and \"pr\" hold %zu and %zu", name, v.jc[n], v.irLen, v.prLen);
  }
}

const char* diagonalMarker(const SparseView& v) { return v.ir[0] == -1 ? " (the matrix was marked as diagonal by a handle)" : ""; }

int largestIndex(const SparseView& v, int lines, const char* name) {
  const int first = lines > 0 ? v.jc[0] : 0;
  const int entries = lines > 0 ? v.jc[lines] - first : 0;
  if (entries <= 0) return -1;
  const unsigned largest = largestOf(v.ir + first, entries);
  if (largest > INT_MAX) {
    host::refuse("%s : index %d in \"ir\", expected 0 or more%s", name, *std::min_element(v.ir + first, v.ir + first + entries),
                 diagonalMarker(v));
  }
  return static_cast<int>(largest);
}

void checkGather(int largest, std::size_t vectorLen, const char* matrixName, const char* vectorName) {
  if (largest >= 0 && static_cast<std::size_t>(largest) >= vectorLen) {
    host::refuse("%s : index %d in \"ir\" reaches past %s of %zu values", matrixName, largest, vectorName, vectorLen);
  }
}

void checkLines(const SparseView& v, int lines, std::size_t vectorLen, const char* matrixName, const char* vectorName) {
  checkLinePointers(v, lines, matrixName);
  checkGather(largestIndex(v, lines, matrixName), vectorLen, matrixName, vectorName);
}

void checkDense(const SparseView& v, const char* name) {
  if (v.rows < 0 || v.cols < 0) host::refuse("%s : size %dx%d is negative", name, v.rows, v.cols);
  checkLength(v.prLen, static_cast<long long>(v.rows) * v.cols, name, "rows x cols of them");
}

void checkLength(std::size_t have, long long need, const char* name, const char* why) {
  if (need > 0 && have < static_cast<std::size_t>(need)) {
    host::refuse("%s must hold %lld values (%s), got %zu", name, need, why, have);
  }
}

}  // namespace quarn
