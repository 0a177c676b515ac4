// The sum of one stored line and a vector: one order of summation for every line, wherever it is used.
//
// Eight partial sums begin at 0, the k-th entry of the line goes to partial sum k mod 8, in ascending k; then t_j = s_j + s_(j+4), and
// the sum is (t_0 + t_2) + (t_1 + t_3). It has the same bits on every processor and in every build, and is never a negative zero.
#pragma once

#include <cstdint>
#include <cstring>

#include "numbers/vectors.h"

namespace quarn {

using TwoProducts = Doubles2;

/// pr[0] * x[ir[0]] and pr[1] * x[ir[1]]. Both indices are read at once: the loads are what a short line takes its time for.
[[gnu::always_inline]] inline TwoProducts twoProducts(const double* pr, const int* ir, const double* x) {
  std::uint64_t both;
  // The analyser takes the pointers that the functions in lineSum hold for null.
  // NOLINTNEXTLINE(clang-analyzer-core.NonNullParamChecker)
  std::memcpy(&both, ir, sizeof both);
  TwoProducts values;
  std::memcpy(&values, pr, sizeof values);
  return values * TwoProducts{x[both & UINT32_MAX], x[both >> 32]};
}

/// One product, and nothing beside it.
[[gnu::always_inline]] inline TwoProducts oneProduct(const double* pr, const int* ir, const double* x) {
  return TwoProducts{pr[0] * x[ir[0]], 0.0};
}

/// lineSum of a line of nine or more entries.
double longLineSum(int n, const double* pr, const int* ir, const double* x);

/// Sum of pr[k] * x[ir[k]], k < n, in the order above. Indices must not be negative.
inline double lineSum(int n, const double* pr, const int* ir, const double* x) {
  if (n > 8) return longLineSum(n, pr, ir, x);
  const auto two = [=](int k) { return twoProducts(pr + k, ir + k, x); };
  const auto one = [=](int k) { return oneProduct(pr + k, ir + k, x); };
  const auto total = [](TwoProducts t) { return 0.0 + (t[0] + t[1]); };
  switch (n) {
    case 1:
      return 0.0 + pr[0] * x[ir[0]];
    case 2:
      return total(two(0));
    case 3:
      return total(two(0) + one(2));
    case 4:
      return total(two(0) + two(2));
    case 5:
      return total((two(0) + one(4)) + two(2));
    case 6:
      return total((two(0) + two(4)) + two(2));
    case 7:
      return total((two(0) + two(4)) + (two(2) + one(6)));
    case 8:
      return total((two(0) + two(4)) + (two(2) + two(6)));
    default:
      return 0.0;
  }
}

}  // namespace quarn
