// What is absent or read as real, where empty arrays have no data and handles go at once.
#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Absent);

mxArray* nothing(int k) {
  switch (k) {
    case 0:
      return text("");
    case 1:
      return cell(0, 0, {});
    case 2:
      return mxCreateNumericMatrix(0, 0, mxSINGLE_CLASS, mxREAL);
    case 3:
      return nativeSparse({});
    default:
      return zeros(0, 3);
  }
}

TEST_P(Absent, ArraysWithoutElementsOfAnyClass) {
  for (int k = 0; k < 5; ++k) {
    mxArray* r = zeros(2);
    const mxArray* K = cell(1, 3, {nullptr, nothing(0), compressed(2, 2, {2, 1, 1, 3})});
    run("residual", {r, K, column({1, 2}), column({3, 4}), nothing(k), nothing(k)}, 0);
    EXPECT_EQ(values(r), (Values{4, 7})) << k;
    const double power = set(1003, element("Power", 1, {2, 1}, {{"unl", zeros(1)}, {"vnl", nothing(k)}, {"snl", nothing(k)}}));
    mxArray* force = zeros(1);
    run("residual", {force, handles({power}), scalar(3), scalar(1), nothing(k)}, 0);
    EXPECT_EQ(values(force), (Values{6})) << k;
    ++keptValues;
  }
}

TEST_P(Absent, NativeSparseMatrixWithoutElementsInACellIsRefused) {
  mxArray* r = zeros(2);
  expectError("", "ir must be int32", "residual",
              {r, cell(1, 3, {nullptr, nullptr, nativeSparse({})}), column({1, 2}), column({3, 4}), zeros(0)});
}

TEST_P(Absent, FieldOfAStructWithoutElements) {
  const char* names[] = {"unl"};
  run("nlv1", {mxCreateStructMatrix(0, 0, 1, names)}, 0);
  run("nlv1", {structure({{"unl", nullptr}})}, 0);
  expectRefusal("expected a struct with a field \"unl\"", "nlv1", {mxCreateStructMatrix(0, 0, 0, names)});
}

TEST_P(Absent, RealPartsAndSparseNumbers) {
  mxArray* y = zeros(2);
  run("tbbp", {compressed(2, 2, {2, 1, 1, 3}), complexMatrix(2, 1, {1, 2}, {7, 8}), y}, 0);
  EXPECT_EQ(values(y), (Values{4, 7}));
  mxArray* r = zeros(2);
  const mxArray* K = cell(1, 3, {nullptr, nullptr, compressed(2, 2, {2, 1, 1, 3})});
  run("residual", {r, K, column({1, 2}), column({3, 4}), zeros(0), complexMatrix(1, 2, {0.5, 0.25}, {1, 1})}, 0);
  EXPECT_EQ(values(r), (Values{4 + 2.5, 7 + 3.75}));
  const mxArray* index = run("chandleset", {nativeSparse({1}), tridiagonal(2, 2, -1)});
  EXPECT_EQ(values(index), (Values{0}));
  EXPECT_TRUE(mxIsStruct(run("chandleget", {nativeSparse({0})})));
}

TEST_P(Absent, SnapshotWithoutColumnsCountsItsRows) {
  NewmarkRun n = newmarkRun(1, 3);
  mxArray* saved = zeros(2, 3);
  n.out = withField(n.out, "FNL", structure({{"data", column({0.05, 0.1, 0.15000000000000002})}, {"def", saved}}));
  n.mem = structure({{"uva", structure({{"uva", zeros(4)}, {"FNL", zeros(2, 0)}})}});
  mxArray* integrator = withField(n.integrator, "iopt", int32s({1}));
  run("chandlediagnewmark", n.arguments(cell(1, 1, {integrator})), 0);
  EXPECT_EQ(values(saved)[3], values(field(n.integrator, "tft"))[3]);
}

TEST_P(Absent, AHandleThatALaterMethodFreesDoesNotExist) {
  const double first = set(1, tridiagonal(2, 2, -1));
  const double second = set(1, tridiagonal(2, 2, -1));
  standin::define("remi", [&](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    const bool last = mxGetScalar(args[1]) == 2.0;
    if (last) run("chandleclear", {scalar(first)}, 0);
    return {scalar(last ? second : first)};
  });
  expectError("KORV:quarn:NonHandle", "Handle does not exist", "residual",
              {zeros(2), handles({first, second}), column({1, 2}), column({3, 4}), zeros(0)});
}

TEST_P(Absent, LongWordsEndAtTheirFirstZero) {
  const mwSize extents[2] = {1, 200};
  mxArray* word = mxCreateCharArray(2, extents);
  auto* characters = static_cast<mxChar*>(mxGetData(word));
  for (int k = 0; k < 200; ++k) characters[k] = static_cast<mxChar>(k < 5 ? "ismex"[k] : k == 5 ? 0 : 'x');
  const standin::Result result = module(1, {word});
  ASSERT_FALSE(result.failed) << result.text;
  EXPECT_EQ(values(result.out[0]), (Values{1}));
}

}  // namespace
