// Loading, calling and unloading the module, again and again.
#include "fixture.h"

namespace {

using namespace build;

ON_MATLAB(Reload);

/// A diagonal-like matrix of enough lines for the parallel product to be split.
mxArray* longDiagonal(int n) {
  std::vector<int> ir, jc{0};
  for (int k = 0; k < n; ++k) {
    ir.push_back(k);
    jc.push_back(k + 1);
  }
  return structure({{"pr", column(Values(static_cast<std::size_t>(n), 2.0))}, {"ir", int32s(ir)}, {"jc", int32s(jc)}});
}

TEST_P(Reload, SurvivesThreeHundredRoundsWithParallelProducts) {
  constexpr int n = 20000;
  mxArray* A = longDiagonal(n);
  mxArray* x = column(Values(n, 3.0));
  mxArray* y = zeros(n);
  for (int round = 1; round <= 300; ++round) {
    ASSERT_EQ(run("tbbp", {A, x, y}, 0), nullptr);
    ASSERT_EQ(mxGetPr(y)[n - 1], 6.0 * round);
    module.clear();
    ASSERT_FALSE(module.loaded());
  }
}

TEST_P(Reload, SurvivesEveryKindOfLastCall) {
  mxArray* A = longDiagonal(5000);
  for (int round = 0; round < 100; ++round) {
    switch (round % 5) {
      case 0:
        module(1, {});
        break;
      case 1:
        run("cvs");
        break;
      case 2:
        expectError("", "quarn : Unknown command", "nothing");
        break;
      case 3:
        expectRefusal("must hold", "tbbp", {A, zeros(5000), zeros(3)});
        break;
      default:
        run("tbbp", {A, zeros(5000), zeros(5000)}, 0);
    }
    module.clear();
  }
}

TEST_P(Reload, StartsWithAnEmptyRegistryAndLeavesHandlesToTheHost) {
  set(1, zeros(3));
  set(2, zeros(3));
  module.clear();
  EXPECT_EQ(mxGetM(run("chandleget")), 0u);
  EXPECT_EQ(set(1, zeros(3)), 0.0);
  // The values of the first life are the host's until it ends.
  EXPECT_EQ(standin::live().persistentArrays, 3u);
  run("chandleclear", {}, 0);
  EXPECT_EQ(standin::live().persistentArrays, 2u);
  standin::clearPersistent();
}

}  // namespace
