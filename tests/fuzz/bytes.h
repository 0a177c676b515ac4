// The fuzzer's input as a source of decisions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace fuzz {

/// Bytes are taken from the front; behind the end there are zeros. A zero is always the ordinary choice, so that an input that ends
/// early goes on validly.
class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : at(data), left(size) {}

  std::uint8_t byte() {
    if (left == 0) return 0;
    --left;
    return *at++;
  }
  bool empty() const { return left == 0; }

  /// 0 ... n-1
  std::size_t below(std::size_t n) { return n > 0 ? byte() % n : 0; }
  /// True for one byte in `in`, never for 0.
  bool rarely(unsigned in = 40) { return byte() % in == in - 1; }

  /// Small fractions, and now and then what breaks arithmetic.
  double number() {
    static const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity(),
                                 -std::numeric_limits<double>::infinity(),
                                 1e300,
                                 -1e300,
                                 5e-324,
                                 -0.0,
                                 2147483647.0,
                                 2147483648.0,
                                 -2147483649.0,
                                 9007199254740992.0,
                                 1e18,
                                 -1.0,
                                 1e-16,
                                 4294967296.0};
    const std::uint8_t b = byte();
    if (b < 220) return (static_cast<double>(b % 110) - (b < 110 ? 0.0 : 55.0)) / 16.0;
    if (b < 250) return odd[b % (sizeof odd / sizeof *odd)];
    std::uint8_t raw[8];
    for (std::uint8_t& r : raw) r = byte();
    double x;
    std::memcpy(&x, raw, sizeof x);
    return x;
  }

  /// 0 ... usual-1, now and then far outside.
  int index(std::size_t usual) {
    static const int odd[] = {-1, -2, 2147483647, -2147483647 - 1, 65536, 1000};
    const std::uint8_t b = byte();
    if (b < 235) return static_cast<int>(usual > 0 ? b % usual : 0);
    return odd[b % (sizeof odd / sizeof *odd)];
  }

 private:
  const std::uint8_t* at;
  std::size_t left;
};

}  // namespace fuzz
