#include "integration/modal_forces.h"

#include <cstring>

#include "numbers/processor.h"
#include "numbers/vectors.h"

namespace quarn {

namespace {

template <class Vector, std::size_t Columns>
[[gnu::always_inline]] inline void sumAlong(double* f, const double* from, std::size_t n, const double* directions, std::size_t count,
                                            const double* values) {
  for (std::size_t i = 0; i < n; i += sizeof(Vector) / sizeof(double)) {
    Vector sum[Columns] = {};
#pragma GCC unroll 8
    for (std::size_t j = 0; j < Columns && from; ++j) load(sum[j], from + j * n + i);
    for (std::size_t k = 0; k < count; ++k) {
      Vector along;
      load(along, directions + k * n + i);
#pragma GCC unroll 8
      for (std::size_t j = 0; j < Columns; ++j) sum[j] += along * values[j * count + k];
    }
#pragma GCC unroll 8
    for (std::size_t j = 0; j < Columns; ++j) std::memcpy(f + j * n + i, &sum[j], sizeof(Vector));
  }
}

template <class Vector>
[[gnu::always_inline]] inline void allAlong(double* f, const double* from, std::size_t n, const double* directions, std::size_t count,
                                            const double* values, std::size_t columns) {
  if (columns == kForceColumns) return sumAlong<Vector, kForceColumns>(f, from, n, directions, count, values);
  for (std::size_t j = 0; j < columns; ++j) {
    sumAlong<Vector, 1>(f + j * n, from ? from + j * n : nullptr, n, directions, count, values + j * count);
  }
}

// NOLINTBEGIN(bugprone-macro-parentheses): attributes and types take none
#define QUARN_FORCES(version, Vector)                                                                                                  \
  version void forces(double* f, const double* from, std::size_t n, const double* directions, std::size_t count, const double* values, \
                      std::size_t columns) {                                                                                           \
    allAlong<Vector>(f, from, n, directions, count, values, columns);                                                                  \
  }
// NOLINTEND(bugprone-macro-parentheses)
#ifdef QUARN_VERSION_BASE
QUARN_FORCES(QUARN_VERSION_BASE, Doubles2)
QUARN_FORCES(QUARN_VERSION_V3, Doubles4)
QUARN_FORCES(QUARN_VERSION_V4, Doubles8)
#elif defined(__AVX512F__)
QUARN_FORCES(, Doubles8)
#elif defined(__AVX__)
QUARN_FORCES(, Doubles4)
#else
QUARN_FORCES(, Doubles2)
#endif
#undef QUARN_FORCES

}  // namespace

void modalForces(double* f, const double* from, std::size_t n, const double* directions, std::size_t count, const double* values,
                 std::size_t columns) {
  forces(f, from, n, directions, count, values, columns);
}

}  // namespace quarn
