#include <gtest/gtest.h>

#include <new>
#include <vector>

#include "handles/handle_types.h"
#include "handles/hindex.h"
#include "host_output.h"
#include "uncalled/uncalled.h"

namespace quarn {
namespace {

chandle* newHandle(int type = 1) {
  auto* h = new (mxCalloc(1, sizeof(chandle))) chandle;
  h->set_val(type, mxCreateDoubleScalar(4.0));
  return h;
}

std::vector<int> keys(const hindex& registry) {
  std::vector<int> all;
  for (const auto& entry : registry.all()) all.push_back(entry.first);
  return all;
}

TEST(Hindex, IssuesZeroOneTwo) {
  hindex registry;
  EXPECT_EQ(registry.get_free_index(), 0);
  EXPECT_EQ(registry.get_free_index(), 1);
  EXPECT_EQ(registry.get_free_index(), 2);
}

TEST(Hindex, LookupOfAnUnknownKeyLeavesItListedWithoutAHandle) {
  hindex registry;
  EXPECT_EQ(registry.getStack(7), nullptr);
  EXPECT_EQ(keys(registry), std::vector<int>{7});
  registry.free_index(7);
  EXPECT_TRUE(keys(registry).empty());
}

TEST(Hindex, FreeingTheIndexToBeIssuedNextLowersTheCounter) {
  hindex registry;
  for (int k = 0; k < 3; ++k) registry.get_free_index();
  registry.free_index(3);
  EXPECT_EQ(registry.get_free_index(), 2);
}

TEST(Hindex, FreeingTheIndexIssuedLastDoesNotLowerTheCounter) {
  hindex registry;
  for (int k = 0; k < 3; ++k) registry.setStack(registry.get_free_index(), newHandle());
  registry.free_index(2);
  EXPECT_EQ(registry.get_free_index(), 3);
  registry.free_index(-1);
}

TEST(Hindex, ALoweredCounterOverwritesTheHandleThatIsThere) {
  hindex registry;
  chandle* first = newHandle();
  registry.setStack(registry.get_free_index(), first);
  registry.free_index(1);
  const int again = registry.get_free_index();
  EXPECT_EQ(again, 0);
  chandle* second = newHandle();
  registry.setStack(again, second);
  EXPECT_EQ(registry.getStack(0), second);
  registry.free_index(-1);
  first->~chandle();
  mxFree(first);
}

TEST(Hindex, ClearAllKeepsTheKeysAndTheCounterAndRunsTwice) {
  hindex registry;
  for (int k = 0; k < 3; ++k) registry.setStack(registry.get_free_index(), newHandle());
  registry.free_index(-1);
  registry.free_index(-1);
  EXPECT_EQ(keys(registry), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(registry.getStack(1), nullptr);
  EXPECT_EQ(registry.get_free_index(), 3);
}

TEST(Hindex, KeysAscendWhateverTheirOrder) {
  hindex registry;
  for (const int k : {5, -3, 9, 0}) registry.setStack(k, nullptr);
  EXPECT_EQ(keys(registry), (std::vector<int>{-3, 0, 5, 9}));
}

TEST(Chandle, AbsentValueIsReplacedByAnEmptyMatrixAndSaysSoOnce) {
  chandle h;
  mxArray* value = nullptr;
  EXPECT_EQ(hostOutput([&] { value = h.get_val(); }).printed, "Empty value\n");
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(mxGetNumberOfElements(value), 0);
  EXPECT_EQ(hostOutput([&] { EXPECT_EQ(h.get_val(), value); }).printed, "");
}

TEST(Chandle, OfNoParticularKindHasNoStateAndNoDiagonal) {
  chandle h;
  h.initCpt();
  EXPECT_EQ(h.val, nullptr);
  EXPECT_EQ(h.type, 0);
  EXPECT_EQ(h.stateEnd(), 0);
  EXPECT_EQ(h.diagonalValues(), nullptr);
}

TEST(EmptyStack, SaysSoAndClearsAll) {
  const int key = cIndex.get_free_index();
  cIndex.setStack(key, newHandle());
  EXPECT_EQ(hostOutput(emptyStack).printed, "Emptying quarn stack\n");
  EXPECT_EQ(cIndex.getStack(key), nullptr);
  cIndex.free_index(key);
}

TEST(Chandle, FreeingForgetsTheValueAndTheType) {
  chandle h;
  h.set_val(3, mxCreateDoubleScalar(1.0));
  h.doFree();
  EXPECT_EQ(h.val, nullptr);
  EXPECT_EQ(h.type, -1);
}

TEST(Chandle, TheNonlinearTypeKeepsItsValueAlive) {
  mxArray* value = mxCreateDoubleScalar(5.0);
  chandle h;
  h.set_val(1003, value);
  h.doFree();
  EXPECT_EQ(h.type, -1);
  EXPECT_EQ(mxGetScalar(value), 5.0);
  mxDestroyArray(value);
}

TEST(ChandleInitByType, MakesEveryKnownType) {
  for (const int code : {1, 2, 3, 1003, 2000}) {
    int ok = 0;
    chandle* h = chandleInitByType(code, &ok);
    EXPECT_EQ(ok, 1);
    EXPECT_EQ(h->val, nullptr);
    mxFree(h);
  }
}

}  // namespace
}  // namespace quarn
