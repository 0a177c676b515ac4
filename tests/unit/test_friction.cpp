// FuFric has no code among the laws, so it is called here directly, on a handle over plain arrays.
#include <gtest/gtest.h>

#include <vector>

#include "uncalled/uncalled.h"

namespace {

/// A handle and the arrays that it borrows.
struct Fixture {
  explicit Fixture(int pageLen, int pages = 1)
      : unl(static_cast<std::size_t>(pageLen * pages)), snl(static_cast<std::size_t>(pageLen), -7.0) {
    for (std::size_t i = 0; i < unl.size(); ++i) unl[i] = 1.5 * static_cast<double>(i) + 0.25;
    h.unl = unl.data();
    h.snl = snl.data();
    h.opt = opt;
    h.iopt = iopt;
    h.unlLen = pageLen;
    h.unlSlices = pages;
    h.optLen = 3;
    h.ioptLen = 5;
    h.unlTotal = unl.size();
    h.snlTotal = snl.size();
  }
  std::vector<double> unl;
  std::vector<double> snl;
  double opt[3] = {0.0, 0.0, 0.5};
  int iopt[5] = {-1, 0, 0, 0, 0};
  quarn::chandleNl_inout h;
};

TEST(FuFric, PassesTheStateOfEachPairOnAsItsForce) {
  Fixture f(4);
  const std::vector<double> before = f.unl;
  quarn::FuFric(&f.h, quarn::ROr{});
  EXPECT_EQ(f.snl, (std::vector<double>{before[1], -7.0, before[3], -7.0}));
  EXPECT_EQ(f.unl, before);
}

TEST(FuFric, TakesTheStateOfAnOddLastPairFromTheNextPage) {
  Fixture f(3, 2);
  const std::vector<double> before = f.unl;
  quarn::checkFric(f.h, quarn::ROr{});
  quarn::FuFric(&f.h, quarn::ROr{});
  EXPECT_EQ(f.snl, (std::vector<double>{before[1], -7.0, before[3]}));
}

TEST(FuFric, OverwritesTheDisplacementsWithoutAnArrayOfForces) {
  Fixture f(4);
  f.h.snl = f.h.unl;
  f.h.snlTotal = f.h.unlTotal;
  const std::vector<double> before = f.unl;
  quarn::FuFric(&f.h, quarn::ROr{});
  EXPECT_EQ(f.unl, (std::vector<double>{before[1], before[1], before[3], before[3]}));
}

TEST(FuFric, DoesNothingWithoutObservations) {
  Fixture f(2);
  f.h.unl = nullptr;
  f.h.unlLen = 0;
  f.h.unlSlices = 0;
  f.h.unlTotal = 0;
  quarn::checkFric(f.h, quarn::ROr{});
  quarn::FuFric(&f.h, quarn::ROr{});
  EXPECT_EQ(f.snl, (std::vector<double>{-7.0, -7.0}));
}

TEST(FuFric, SetsTheTimeIncrementOnceWhereItIsZero) {
  Fixture f(2);
  quarn::ROr ro;
  ro.t = 0.125;
  quarn::FuFric(&f.h, ro);
  EXPECT_EQ(f.opt[2], 0.5);
  f.opt[2] = -0.0;
  quarn::FuFric(&f.h, ro);
  EXPECT_EQ(f.opt[2], 0.125);
  ro.t = 0.25;
  quarn::FuFric(&f.h, ro);
  EXPECT_EQ(f.opt[2], 0.125);
}

TEST(FuFric, StoresForcesAndTheLastStateBlock) {
  Fixture f(4);
  double u[3] = {9.0, 9.0, 9.0};
  double fnl[6] = {9.0, 9.0, 9.0, 9.0, 9.0, 9.0};
  quarn::ROr ro;
  ro.u = u;
  ro.uLen = 3;
  ro.FNL = fnl;
  ro.fnlLen = 6;
  const int places[5] = {1, 2, 1, 1, 2};
  f.h.iopt = places;
  quarn::FuFric(&f.h, ro);
  EXPECT_EQ(std::vector<double>(fnl, fnl + 6), (std::vector<double>{9.0, f.unl[1], -7.0, f.unl[3], -7.0, 9.0}));
  EXPECT_EQ(std::vector<double>(u, u + 3), (std::vector<double>{9.0, 9.0, f.unl[3]}));
}

}  // namespace
