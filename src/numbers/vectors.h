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

}  // namespace quarn
