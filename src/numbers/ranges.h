// Ranges of doubles in memory: copies that stay inside their target, and whether two ranges share memory.
#pragma once

#include <cstddef>
#include <cstring>

namespace quarn {

/// Copies n values, which may share memory with those they replace. In a step most copies are of few values: those need no call.
inline void moveValues(double* to, const double* from, std::size_t n) {
  if (n == 1) {
    *to = *from;
  } else {
    std::memmove(to, from, n * sizeof(double));
  }
}

/// Copies the values of src that fall inside a destination of dstCount values when they are stored from offset on; what lies
/// outside is left out. Returns nothing. offset may be negative or beyond the end.
void storeClipped(double* dst, std::size_t dstCount, long long offset, const double* src, long long n);
/// The same one value after the other in ascending order, which shows where the two lie on each other.
void storeAscending(double* dst, std::size_t dstCount, long long offset, const double* src, long long n);

/// Whether nA values from a on share memory with nB values from b on. Null and no values share nothing.
bool overlap(const double* a, std::size_t nA, const double* b, std::size_t nB);

/// Values in memory. Borrowed.
struct Range {
  const double* data;
  std::size_t count;
};

/// Whether the n values at x share memory with none of the ranges.
bool apartFrom(const Range* ranges, int rangeCount, const double* x, std::size_t n);

}  // namespace quarn
