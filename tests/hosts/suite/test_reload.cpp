// Loading, calling and unloading the module, again and again.
#include <cstdlib>

#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Reload);

// Each round starts 14 threads and ends them, which sanitizers make slow.
int rounds() {
  if (std::getenv("QUARN_FULL") && *std::getenv("QUARN_FULL")) return 300;
  return std::getenv("QUARN_SANITIZED") ? 15 : 40;
}

TEST_P(Reload, SurvivesManyRoundsWithParallelProducts) {
  mxArray* A = manyEntries();
  mxArray* x = column(Values(manyLines, 0.5));
  mxArray* y = zeros(manyLines);
  for (int round = 1; round <= rounds(); ++round) {
    ASSERT_EQ(run("tbbp", {A, x, y}, 0), nullptr);
    ASSERT_EQ(mxGetPr(y)[manyLines - 1], 100.0 * round);
    module.clear();
    ASSERT_FALSE(module.loaded());
  }
}

TEST_P(Reload, SurvivesEveryKindOfLastCall) {
  mxArray* A = manyEntries();
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
        expectRefusal("must hold", "tbbp", {A, zeros(manyLines), zeros(3)});
        break;
      default:
        run("tbbp", {A, zeros(manyLines), zeros(manyLines)}, 0);
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
