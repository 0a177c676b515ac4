// "residual" with handles and with matrices.
#include <cmath>

#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Residual);

// K = [2 -1 0; -1 2 -1; 0 -1 2]
mxArray* springs() { return tridiagonal(3, 2, -1); }

TEST_P(Residual, OfHandlesAddsEachContribution) {
  const mxArray* list = handles({set(1, springs()), set(2, compressed(3, 3, {4, 0, 0, 0, 4, 0, 0, 0, 4})), set(3, springs())});
  mxArray* r = column({100, 200, 300});
  mxArray* u = column({1, 2, 3});
  mxArray* v = column({10, 0, 0});
  mxArray* a = column({1, 1, 1});
  run("residual", {r, list, u, v, a, column({0.5, 0.25}), zeros(0)}, 0);
  // K u = [0 0 4], beta K v = [5 -2.5 0], M a = 4, alpha M v = [20 0 0], C v = [20 -10 0]
  EXPECT_EQ(values(r), (Values{149, 191.5, 308}));
  run("residual", {r, list, u, v, a}, 0);  // the registered handles serve again
  EXPECT_EQ(values(r), (Values{149 + 24, 191.5 - 6, 316}));
}

TEST_P(Residual, OfHandlesNeitherTouchesTheValueNorNeedsAnAcceleration) {
  mxArray* M = compressed(3, 3, {4, 0, 0, 0, 4, 0, 0, 0, 4});
  const double index = set(2, M);
  mxArray* r = zeros(3);
  run("residual", {r, handles({index}), column({1, 2, 3}), zeros(3), zeros(0), column({1, 1})}, 0);
  EXPECT_EQ(values(r), (Values{0, 0, 0}));
  // The diagonal marker lies in the duplicate.
  EXPECT_EQ(ints(field(M, "ir")), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(ints(field(run("chandleget", {scalar(index)}), "ir")), (std::vector<int>{-1, 1, 2}));
}

TEST_P(Residual, OfNoHandlesAddsNothing) {
  mxArray* r = column({5});
  run("residual", {r, standin::object("chandle", {}, 0), scalar(1), scalar(1), scalar(1)}, 0);
  EXPECT_EQ(values(r), (Values{5}));
}

TEST_P(Residual, OfAMethodThatReturnsNothingIsRefused) {
  standin::define("remi", [](int, const standin::Arguments&) -> std::vector<mxArray*> { return {}; });
  expectError("KORV:quarn:NonHandle", "Handle does not exist", "residual", {zeros(1), handles({0}), zeros(1), zeros(1), zeros(1)});
}

TEST_P(Residual, OfAnUnknownHandleIsRefusedBeforeAnythingIsAdded) {
  mxArray* r = column({5, 5, 5});
  const double good = set(1, springs());
  for (const double bad : {17.0, std::nan(""), -1.0, 1e99}) {
    expectError("KORV:quarn:NonHandle", "Handle does not exist", "residual",
                {r, handles({good, bad}), column({1, 2, 3}), zeros(3), zeros(3)});
  }
  mxArray* freed = handles({good});
  run("chandleclear", {scalar(good)}, 0);
  expectError("KORV:quarn:NonHandle", "Handle does not exist", "residual", {r, freed, zeros(3), zeros(3), zeros(3)});
  EXPECT_EQ(values(r), (Values{5, 5, 5}));
}

TEST_P(Residual, SurvivesAMethodThatClearsTheHandlesOfTheList) {
  set(1, springs());
  int calls = 0;
  standin::define("remi", [&](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    if (++calls == 2) quarn(0, "chandleclear", {scalar(0)});
    return {scalar(mxGetScalar(args[1]) - 1)};
  });
  expectError("KORV:quarn:NonHandle", "Handle does not exist", "residual",
              {column({1, 1, 1}), handles({0, 1}), column({1, 2, 3}), zeros(3), zeros(3)});
  EXPECT_EQ(calls, 2);
}

TEST_P(Residual, OfAMatrixCellAddsTheLinearTermsAndReturnsEnergies) {
  mxArray* model = cell(1, 3, {compressed(3, 3, {4, 0, 0, 0, 4, 0, 0, 0, 4}), springs(), springs()});
  mxArray* r = zeros(3);
  const standin::Result result =
      quarn(2, "residual", {r, model, column({1, 2, 3}), column({10, 0, 0}), column({1, 1, 1}), column({0.5, 0.25})});
  ASSERT_FALSE(result.failed) << result.text;
  EXPECT_EQ(values(r), (Values{4 + 20 + 20 + 0 + 5, 4 - 10 + 0 - 2.5, 4 + 4}));
  EXPECT_EQ(mxGetScalar(result.out[0]), 200.0);
  EXPECT_EQ(mxGetScalar(result.out[1]), 6.0);
  EXPECT_EQ(run("residual", {r, model, zeros(3), zeros(3), zeros(3)}), nullptr);  // one output: none
}

TEST_P(Residual, OfUnsetCellsAddsNothing) {
  mxArray* r = column({1, 2, 3});
  mxArray* model = cell(1, 3, {nullptr, nullptr, nullptr});
  const standin::Result result = quarn(2, "residual", {r, model, zeros(3), zeros(3), zeros(3)});
  ASSERT_FALSE(result.failed) << result.text;
  EXPECT_EQ(mxGetScalar(result.out[0]), 0.0);
  EXPECT_EQ(values(r), (Values{1, 2, 3}));
  run("residual",
      {r, structure({{"K", cell(1, 3, {nullptr, nullptr, nullptr})}, {"NL", cell(2, 3, {})}, {"FNL", nullptr}}), zeros(3), zeros(3),
       zeros(0), structure({{"Rayleigh", nullptr}})},
      0);
  EXPECT_EQ(values(r), (Values{1, 2, 3}));
}

TEST_P(Residual, ModalDampingUsesTheSecondHalfOfItsData) {
  mxArray* data = column({2, 3, 0, 0});
  mxArray* damping = structure({{"def", matrix(2, 2, {1, 1, 1, -1})}, {"data", data}});
  mxArray* r = zeros(2);
  run("residual", {r, cell(1, 3, {nullptr, damping, nullptr}), zeros(2), column({3, 1}), zeros(0)}, 0);
  // def' v = [4 2], scaled [8 6]
  EXPECT_EQ(values(data), (Values{2, 3, 8, 6}));
  EXPECT_EQ(values(r), (Values{14, 2}));
}

TEST_P(Residual, ReachesMatricesThroughObjects) {
  mxArray* r = zeros(3);
  const mxArray* object = standin::object("v_handle", {{"file", springs()}});
  const mxArray* oldStyle = standin::oldObject("v_handle", {{"file", springs()}});
  for (const mxArray* K : {object, oldStyle}) {
    run("residual", {r, cell(1, 3, {nullptr, nullptr, const_cast<mxArray*>(K)}), column({1, 2, 3}), zeros(3), zeros(0)}, 0);
  }
  EXPECT_EQ(values(r), (Values{0, 0, 8}));
  expectRefusal("without a field \"file\"", "residual",
                {r, cell(1, 3, {nullptr, nullptr, standin::object("v_handle", {})}), zeros(3), zeros(3), zeros(0)});
  expectRefusal("without a field \"file\"", "residual",
                {r, cell(1, 3, {nullptr, nullptr, standin::oldObject("v_handle", {})}), zeros(3), zeros(3), zeros(0)});
  expectRefusal("without a field \"file\"", "tbbp", {standin::object("v_handle", {{"file", springs()}}, 0), zeros(3), zeros(3)});
}

TEST_P(Residual, WritesThroughTheAddressThatAnObjectHolds) {
  Values buffer{1, 2, 3};
  mxArray* address = mxCreateNumericMatrix(1, 1, mxUINT64_CLASS, mxREAL);
  *static_cast<std::uint64_t*>(mxGetData(address)) = reinterpret_cast<std::uintptr_t>(buffer.data());
  run("residual",
      {standin::object("buffer", {{"c", address}}), cell(1, 3, {nullptr, nullptr, springs()}), column({1, 2, 3}), zeros(3), zeros(0)}, 0);
  EXPECT_EQ(buffer, (Values{1, 2, 7}));
  expectRefusal("holds no 64-bit address", "residual", {standin::object("buffer", {}), cell(1, 3, {}), zeros(3), zeros(3), zeros(0)});
}

TEST_P(Residual, ErrorsOfItsArguments) {
  mxArray* model = cell(1, 3, {nullptr, nullptr, springs()});
  expectError("KORV:quarn:Invalid", "Real numbers for r", "residual", {complexMatrix(1, 1, {1}, {1}), model, zeros(1), zeros(1), zeros(1)});
  expectError("", "Real numbers needed.", "residual", {zeros(1), model, complexMatrix(1, 1, {1}, {1}), zeros(1), zeros(1)});
  expectError("", "Real numbers needed.", "residual", {zeros(1), model, zeros(1), zeros(1), complexMatrix(1, 1, {1}, {1})});
  expectError("", "model.K must be a 3*1 cell array", "residual", {zeros(3), cell(3, 1, {}), zeros(3), zeros(3), zeros(3)});
  expectError("", "model.K must be a 3*1 cell array", "residual", {zeros(3), structure({{"M", zeros(3)}}), zeros(3), zeros(3), zeros(3)});
  expectError("", "Implemented for sparse matrices", "residual", {zeros(1), cell(1, 3, {zeros(1)}), zeros(1), zeros(1), zeros(1)});
  expectError("", "ir must be int32", "residual", {zeros(1), cell(1, 3, {nativeSparse({1})}), zeros(1), zeros(1), zeros(1)});
  expectRefusal("expected at least 6 inputs", "residual", {zeros(1), model});
  expectRefusal("u must be a full real double array", "residual", {zeros(1), model, cell(1, 1, {}), zeros(1), zeros(1)});
  expectRefusal("must hold 3 values", "residual", {zeros(2), model, zeros(3), zeros(3), zeros(3)});
  expectRefusal("an index of column", "residual",
                {zeros(1), cell(1, 3, {nullptr, nullptr, structure({{"pr", column({1})}, {"ir", int32s({9})}, {"jc", int32s({0, 1})}})}),
                 zeros(1), zeros(1), zeros(0)});
}

}  // namespace
