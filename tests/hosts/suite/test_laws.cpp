// Laws with states and the laws of the list that quarn computes itself, on numbers that can be followed by hand.
#include <cmath>

#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Laws);

const Values identity3{1, 0, 0, 0, 1, 0, 0, 0, 1};

TEST_P(Laws, MaxwellAddsElasticAndViscousParts) {
  // opt: code, -, h, sub-steps, -, Cu (2), Dv (2), B, A, E
  mxArray* value =
      element("Maxw", 1, {0, 0.5, 1, 0, 2, 3, 5, 7, 11, 13, 17},
              {{"unl", pages(2, 1, 3, {})}, {"vnl", pages(2, 1, 3, {})}, {"snl", zeros(2)}, {"iopt", int32s({-1, 0, 1, 1, 1})}});
  keptValues = 1;
  const double index = set(1003, value);
  mxArray* r = zeros(1);
  run("residual", {r, handles({index}), scalar(0.5), scalar(0.25), zeros(0)}, 0);
  const double rate = 11 * 0.5 + 17 * 0.25;
  EXPECT_EQ(values(r), (Values{2 * 0.5 + 5 * 0.25 + 7 * rate}));
  mxArray* after = run("chandleget", {scalar(index)});
  EXPECT_EQ(values(field(after, "vnl")), (Values{0.25, rate, 0, 0, 0, rate}));
}

TEST_P(Laws, MaxwellWithoutObservedValuesEndsWhateverItsCounts) {
  constexpr double most = 2147483647.0;
  mxArray* value =
      element("Maxw", 1, {0, 0.5, most, 0, 2, 5},
              {{"unl", pages(1, 1, 2, {})}, {"vnl", pages(1, 1, 2, {})}, {"snl", zeros(1)}, {"iopt", int32s({-1, 0, 0, 0, 2147483647})}});
  keptValues = 1;
  mxArray* r = zeros(1);
  run("residual", {r, handles({set(1003, value)}), scalar(0.5), scalar(0.25), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{2 * 0.5 + 2 * 0.25}));  // with no states, Cu and Dv begin at the same place
}

TEST_P(Laws, Clima2AddsTwoBranchesAndTheTabulatedForce) {
  // opt: code, -, h, k, e, mu, offset, table (abscissae 0 1, limits 10 20, stiffnesses 100 100), record (3)
  mxArray* value = structure({{"type", scalar(1003)},
                              {"c", compressed(3, 3, identity3, true)},
                              {"b", compressed(3, 3, identity3, true)},
                              {"opt", column({lawCode("Clima2"), 0, 0.01, 3, 1, 0.5, 2, 0, 1, 10, 20, 100, 100, 0, 0, 0})},
                              {"unl", pages(5, 1, 3, {})},
                              {"vnl", pages(5, 1, 3, {})},
                              {"snl", zeros(5)},
                              {"iopt", int32s({-1, 0, 0, 0, 0, 7, 13, 2, 2})}});
  keptValues = 1;
  mxArray* r = zeros(3);
  run("residual", {r, handles({set(1003, value)}), column({0.1, 0.2, 0.5}), column({1, -1, 0}), zeros(0)}, 0);
  const Values got = values(r);
  EXPECT_NEAR(got[0], 1 - 0.3, 1e-14);
  EXPECT_NEAR(got[1], -1 - 0.6, 1e-14);
  EXPECT_NEAR(got[2], 15 - 1.5 - 2, 1e-14);
}

/// Value of an element that observes two rows as they stand.
mxArray* shaft(const char* law, const Values& parameters) {
  Values opt{lawCode(law)};
  opt.insert(opt.end(), parameters.begin(), parameters.end());
  return structure({{"type", scalar(1003)},
                    {"c", compressed(2, 2, {1, 0, 0, 1}, true)},
                    {"b", compressed(2, 2, {1, 0, 0, 1}, true)},
                    {"opt", column(opt)},
                    {"unl", zeros(2)},
                    {"vnl", zeros(2)},
                    {"snl", zeros(2)}});
}

TEST_P(Laws, RadialPushesBackAndRubs) {
  // opt: gap, k, p, chi, mu, onset, radius, spin, centre. The place is 3, 4: a depth of 3, deeper at 1 m/s, surfaces at 3 * 2 m/s.
  mxArray* r = zeros(2);
  run("residual",
      {r, handles({set(1003, shaft("Radial", {2, 10, 2, 0.5, 0.25, 0, 2, 3, 0, 0}))}), column({3, 4}), column({0.6, 0.8}), zeros(0)}, 0);
  const double normal = 10 * 9 * 1.5;
  EXPECT_NEAR(values(r)[0], normal * (0.6 - 0.25 * 0.8), 1e-12);
  EXPECT_NEAR(values(r)[1], normal * (0.8 + 0.25 * 0.6), 1e-12);
  keptValues = 1;
}

TEST_P(Laws, JournalCarriesAShaftOnItsFilm) {
  // opt: mu, L, R, c, spin, limit, centre, record. At the eccentricity e = 0.5 on x, at rest: 2 e^2/(1-e^2)^2 and pi e/(2 (1-e^2)^1.5).
  const double index = set(1003, shaft("Journal", {2, 1, 3, 0.5, 7, 0.9, 0, 0, 0}));
  mxArray* r = zeros(2);
  run("residual", {r, handles({index}), column({0.25, 0}), zeros(2), zeros(0)}, 0);
  const double unit = 2.0 * 7 * 3 / (2 * 0.25);
  EXPECT_NEAR(values(r)[0], unit * 0.5 / (0.75 * 0.75), 1e-11);
  EXPECT_NEAR(values(r)[1], -unit * 0.25 * 3.14159265358979 / std::pow(0.75, 1.5), 1e-11);
  EXPECT_EQ(values(field(run("chandleget", {scalar(index)}), "opt"))[9], 0.5);
  keptValues = 1;
}

/// NL of one element and the model around it.
mxArray* modelOf(mxArray* e) { return structure({{"K", cell(1, 3, {})}, {"NL", cell(1, 3, {nullptr, nullptr, e})}, {"FNL", zeros(3)}}); }

mxArray* rotcenterElement(int rows, int unset = 0) {
  std::vector<mxArray*> cells(static_cast<std::size_t>(2 * rows), nullptr);
  const auto put = [&](int row, mxArray* value) { cells[static_cast<std::size_t>(rows + row - 1)] = row == unset ? nullptr : value; };
  put(1, scalar(1));
  put(2, matrix(3, 3, identity3));
  put(3, zeros(3));
  put(4, zeros(3));
  put(5, scalar(2));
  put(6, scalar(1));
  put(7, scalar(3));
  put(8, scalar(1));
  put(10, zeros(3));
  if (rows > 10) put(11, int32s({0, 1, 2}));
  return structure({{"type", text("rotcenter")},
                    {"Cell", cell(static_cast<mwSize>(rows), 2, cells)},
                    {"Fu", matrix(2, 2, {-8, 8, -80, 80})},
                    {"Fv", matrix(2, 2, {-8, 8, 0, 0})},
                    {"cur_u", zeros(3)},
                    {"cur_v", zeros(3)}});
}

TEST_P(Laws, RotcenterLinksTwoPoints) {
  mxArray* model = modelOf(rotcenterElement(11));
  mxArray* r = zeros(3);
  run("residual", {r, model, column({0, 0.25, 0.75}), zeros(3), zeros(0)}, 0);
  const Values got = values(r);
  EXPECT_NEAR(got[0], 0, 1e-12);
  EXPECT_NEAR(got[1], -5, 1e-12);
  EXPECT_NEAR(got[2], 5, 1e-12);
  EXPECT_NEAR(values(field(model, "FNL"))[0], 5, 1e-12);
  expectRefusal("Cell must be a cell of 10 rows or more", "residual",
                {r, modelOf(structure({{"type", text("rotcenter")}, {"Cell", cell(9, 2, {})}})), zeros(3), zeros(3), zeros(0)});
}

TEST_P(Laws, UnsetParametersOfRotcenterAreRefused) {
  for (int row = 1; row <= 11; ++row) {
    if (row == 9 || row == 6 || row == 8) continue;  // not read; no positions: no DOFs
    expectRefusal("is needed by \"rotcenter\"", "residual", {zeros(3), modelOf(rotcenterElement(11, row)), zeros(3), zeros(3), zeros(0)});
  }
}

TEST_P(Laws, Mocirc2AddsNothing) {
  mxArray* r = column({1, 2, 3});
  mxArray* e = structure({{"type", text("mocirc2")}, {"cta", compressed(3, 3, identity3)}});
  run("residual", {r, modelOf(e), column({1, 2, 3}), zeros(3), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{1, 2, 3}));
}

TEST_P(Laws, AnEmptyTypeDoesNothing) {
  mxArray* r = column({1});
  run("residual", {r, modelOf(structure({{"type", text("")}})), zeros(1), zeros(1), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{1}));
}

TEST_P(Laws, ObservationPagesFollowTheStructure) {
  mxArray* e = structure({{"type", text("")},
                          {"c", compressed(1, 1, {1}, true)},
                          {"unl", column({9})},
                          {"unl0", column({100})},
                          {"vnl", pages(1, 1, 3, {1, 2, 3})}});
  run("residual", {zeros(1), modelOf(e), scalar(5), scalar(7), zeros(0)}, 0);
  EXPECT_EQ(values(field(e, "unl")), (Values{105}));
  EXPECT_EQ(values(field(e, "vnl")), (Values{7, 2, 3}));  // the structure has one page: started from 0
}

}  // namespace
