// Vectors of two, four and eight values side by side: what a register holds on the base processor, from v3 and from v4 on (processor.h).
// Longer ones than the register would be worked on in memory.
#pragma once

#include <cstring>

namespace quarn {

using Doubles2 [[gnu::vector_size(2 * sizeof(double))]] = double;
using Doubles4 [[gnu::vector_size(4 * sizeof(double))]] = double;
using Doubles8 [[gnu::vector_size(8 * sizeof(double))]] = double;

/// As many values as the vector has, wherever they begin.
template <class Vector>
[[gnu::always_inline]] inline void load(Vector& to, const double* from) {
  // The analyser takes the arrays of forces that a kernel has for null.
  // NOLINTNEXTLINE(clang-analyzer-core.NonNullParamChecker)
  std::memcpy(&to, from, sizeof to);
}

/// Eight partial sums s, values or vectors of them, in the order in which every sum of a line ends.
template <class Value>
[[gnu::always_inline]] inline void sumOfEight(Value& sum, const Value* s) {
  sum = ((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7]));
}

}  // namespace quarn
