#include "numbers/ranges.h"

#include <algorithm>
#include <climits>
#include <functional>

namespace quarn {

namespace {

/// Values first to last - 1 of n fall inside a destination of dstCount values that begins offset values before the first.
struct Inside {
  Inside(std::size_t dstCount, long long offset, long long n)
      : first(std::max(0LL, -offset)), last(std::min(n, static_cast<long long>(std::min<std::size_t>(dstCount, LLONG_MAX)) - offset)) {}
  long long first;
  long long last;
};

}  // namespace

void storeClipped(double* dst, std::size_t dstCount, long long offset, const double* src, long long n) {
  if (!dst || !src) return;
  const Inside in(dstCount, offset, n);
  if (in.first >= in.last) return;
  moveValues(dst + offset + in.first, src + in.first, static_cast<std::size_t>(in.last - in.first));
}

void storeAscending(double* dst, std::size_t dstCount, long long offset, const double* src, long long n) {
  if (!dst || !src) return;
  const Inside in(dstCount, offset, n);
  for (long long i = in.first; i < in.last; ++i) dst[offset + i] = src[i];
}

bool overlap(const double* a, std::size_t nA, const double* b, std::size_t nB) {
  const std::less<const double*> before;  // also for pointers into different arrays
  return a && b && nA > 0 && nB > 0 && before(a, b + nB) && before(b, a + nA);
}

bool apartFrom(const Range* ranges, int rangeCount, const double* x, std::size_t n) {
  return std::none_of(ranges, ranges + rangeCount, [x, n](const Range& r) { return overlap(r.data, r.count, x, n); });
}

}  // namespace quarn
