// Doubles used as integers.
#pragma once

#include <climits>
#include <cstdint>
#include <cstring>

namespace quarn {

/// Integer part of x. What does not fit, NaN included, becomes INT_MIN, as the x86-64 conversion instruction does.
constexpr int toInt(double x) { return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int>(x) : INT_MIN; }

/// The same for 64-bit integers; what does not fit becomes INT64_MIN.
constexpr std::int64_t toInt64(double x) {
  return x >= -9223372036854775808.0 && x < 9223372036854775808.0 ? static_cast<std::int64_t>(x) : INT64_MIN;
}

/// Absolute value in 32 bits: INT_MIN has none and stays as it is.
constexpr int absolute(int x) { return x < 0 && x != INT_MIN ? -x : x; }

/// Whether two values are the same to the last bit, NaN and the sign of zero included.
inline bool sameBits(double a, double b) {
  std::uint64_t x = 0;
  std::uint64_t y = 0;
  std::memcpy(&x, &a, sizeof x);
  std::memcpy(&y, &b, sizeof y);
  return x == y;
}

}  // namespace quarn
