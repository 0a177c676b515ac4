#include <gtest/gtest.h>

#include "handles/handle_list.h"

namespace quarn {
namespace {

/// Multiplies r[0] by ten and adds its digit, so that r tells which handles were called and in which order.
class Digit final : public chandle {
 public:
  explicit Digit(int value) : digit(value) { type = 1; }
  void Residual(ROr /*ctx*/, double* r) override { r[0] = 10 * r[0] + digit; }
  void checkSizes(const ROr& /*ctx*/, std::size_t rLen) override {
    seen = rLen;
    ++checked;
  }
  void takeWork(host::Doubles /*r*/) override { checkedBefore = checked; }
  static int checked;
  int checkedBefore = 0;
  int digit;
  std::size_t seen = 0;
};

int Digit::checked = 0;

TEST(AddResiduals, HandlesTakeWorkMemoryOnceAllOfThemAreChecked) {
  Digit one(1);
  Digit two(2);
  chandle* list[] = {&one, &two};
  double r[1] = {0};
  Digit::checked = 0;
  addResiduals(list, 2, ROr{}, {r, 1});
  EXPECT_EQ(one.checkedBefore, 2);
  EXPECT_EQ(two.checkedBefore, 2);
}

TEST(AddResiduals, CallsLiveHandlesInOrderAndPassesOverTheOthers) {
  Digit one(1);
  Digit two(2);
  Digit three(3);
  two.type = -1;
  chandle* list[] = {&one, nullptr, &two, &three};
  double r[2] = {0, 0};
  addResiduals(list, 4, ROr{}, {r, 2});
  EXPECT_EQ(r[0], 13.0);
  EXPECT_EQ(one.seen, 2U);
  EXPECT_EQ(two.seen, 0U);
}

TEST(AddResiduals, AnEmptyListLeavesTheResidualUnchanged) {
  double r[1] = {7};
  addResiduals(nullptr, 0, ROr{}, {r, 1});
  EXPECT_EQ(r[0], 7.0);
}

}  // namespace
}  // namespace quarn
