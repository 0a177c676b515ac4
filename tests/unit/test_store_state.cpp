// The store of states against the loop over its blocks, written down as it is defined.
#include <gtest/gtest.h>

#include <cstddef>
#include <ctime>
#include <random>
#include <vector>

#include "nonlinear/nl_inout.h"
#include "rounds.h"

namespace quarn {
namespace {

constexpr int biggest = 2147483647;

/// unl and u in one stretch of memory; where they lie on each other the test says so by its offset.
struct Case {
  int place, skip, length, blocks;
  std::vector<double> memory;
  std::size_t unlBegin, unlCount, uBegin, uCount;

  std::vector<double> stored() const {
    std::vector<double> m = memory;
    const int iopt[5] = {-1, place, skip, length, blocks};
    chandleNl_inout h;
    h.iopt = iopt;
    h.ioptLen = 5;
    h.unl = m.data() + unlBegin;
    h.unlTotal = unlCount;
    ROr ro{};
    ro.u = m.data() + uBegin;
    ro.uLen = uCount;
    StoreState(&h, ro);
    return m;
  }

  std::vector<double> defined() const {
    std::vector<double> m = memory;
    long long cursor = 0;
    for (int k = 0; k < blocks && place > 0; ++k) {
      cursor += skip;
      const std::vector<double> before = m;
      for (long long j = 0; j < length; ++j) {
        const long long from = cursor + j;
        const long long to = place + j;
        if (from < 0 || from >= static_cast<long long>(unlCount) || to >= static_cast<long long>(uCount)) continue;
        m[uBegin + static_cast<std::size_t>(to)] = before[unlBegin + static_cast<std::size_t>(from)];
      }
      cursor += length;
    }
    return m;
  }
};

Case randomCase(std::mt19937& gen, bool apart) {
  const auto pick = [&gen](int low, int high) { return std::uniform_int_distribution<int>(low, high)(gen); };
  Case c{};
  c.place = pick(-1, 7);
  c.skip = pick(-9, 6);
  c.length = pick(-1, 9);
  c.blocks = pick(-1, 12);
  c.unlCount = static_cast<std::size_t>(pick(0, 9));
  c.uCount = static_cast<std::size_t>(pick(0, 9));
  c.unlBegin = static_cast<std::size_t>(pick(0, 6));
  c.uBegin = apart ? 16 : static_cast<std::size_t>(pick(0, 6));
  for (int i = 0; i < 32; ++i) c.memory.push_back(i + 0.25);
  return c;
}

TEST(StoreState, HasTheResultOfItsLoop) {
  std::mt19937 gen(15);
  int changed = 0;
  const int cases = test::rounds(200000);
  for (int k = 0; k < cases; ++k) {
    const Case c = randomCase(gen, k % 2 == 0);
    const std::vector<double> got = c.stored();
    changed += got != c.memory;
    ASSERT_EQ(got, c.defined()) << "case " << k << ": " << c.place << " " << c.skip << " " << c.length << " " << c.blocks;
  }
  EXPECT_GT(changed, cases / 10);
}

// Counts as large as they get, with the result of smaller ones that reach beyond the arrays just as well.
TEST(StoreState, CountsBeyondTheArraysTakeNoTime) {
  std::mt19937 gen(16);
  const std::clock_t begun = std::clock();
  for (int k = 0; k < 4000; ++k) {
    Case c = randomCase(gen, k % 2 == 0);
    c.length = 60;
    c.skip = 1 - c.length;
    c.blocks = 60;
    const std::vector<double> wanted = c.defined();
    c.length = biggest;
    c.skip = 1 - c.length;  // the last block begins with unl here as well
    c.blocks = biggest;
    ASSERT_EQ(c.stored(), wanted) << "case " << k << ": " << c.place << " " << c.skip << " " << c.length << " " << c.blocks;
  }
  // Each call took 20 seconds when it went through all blocks.
  EXPECT_LT(static_cast<double>(std::clock() - begun) / CLOCKS_PER_SEC, 20.0);
}

}  // namespace
}  // namespace quarn
