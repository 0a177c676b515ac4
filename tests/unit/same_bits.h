// Whether two vectors are the same, bit for bit: 0 and -0 differ.
#pragma once

#include <cstring>
#include <vector>

namespace quarn::test {

inline bool sameBits(const std::vector<double>& a, const std::vector<double>& b) {
  return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0);
}

}  // namespace quarn::test
