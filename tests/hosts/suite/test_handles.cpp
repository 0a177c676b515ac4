// The registry of handles, across calls.
#include <cmath>

#include "fixture.h"

namespace {

using namespace build;

ON_MATLAB(Handles);

TEST_P(Handles, AreNumberedFromZeroAndListed) {
  EXPECT_EQ(set(1, zeros(2)), 0.0);
  EXPECT_EQ(set(2, zeros(2)), 1.0);
  EXPECT_EQ(values(run("chandleget")), (Values{0, 1}));
}

TEST_P(Handles, TheListOfNoneIsAColumnWithoutRows) {
  mxArray* keys = run("chandleget");
  EXPECT_EQ(mxGetM(keys), 0u);
  EXPECT_EQ(mxGetN(keys), 1u);
}

TEST_P(Handles, OwnADeepDuplicateOfTheirValue) {
  mxArray* value = structure({{"pr", column({1, 2})}, {"inner", cell(1, 2, {column({7}), nullptr})}});
  const double index = set(1, value);
  mxGetPr(field(value, "pr"))[0] = -5;
  mxGetPr(mxGetCell(field(value, "inner"), 0))[0] = -5;
  mxArray* got = run("chandleget", {scalar(index)});
  EXPECT_EQ(values(field(got, "pr")), (Values{1, 2}));
  EXPECT_EQ(values(mxGetCell(field(got, "inner"), 0)), (Values{7}));
  EXPECT_EQ(mxGetCell(field(got, "inner"), 1), nullptr);
  // What is returned is a duplicate, too.
  mxGetPr(field(got, "pr"))[1] = -5;
  EXPECT_EQ(values(field(run("chandleget", {scalar(index)}), "pr")), (Values{1, 2}));
}

TEST_P(Handles, TakeValuesOfEveryClass) {
  const Values diagonal{1, 2, 3};
  const double sparse = set(1, nativeSparse(diagonal));
  mxArray* got = run("chandleget", {scalar(sparse)});
  EXPECT_TRUE(mxIsSparse(got));
  EXPECT_EQ(mxGetJc(got)[3], 3u);
  EXPECT_TRUE(mxIsComplex(run("chandleget", {scalar(set(2, complexMatrix(1, 1, {1}, {2})))})));
  EXPECT_TRUE(mxIsChar(run("chandleget", {scalar(set(3, text("abc")))})));
  EXPECT_EQ(mxGetNumberOfElements(run("chandleget", {scalar(set(1, zeros(0, 4)))})), 0u);
  EXPECT_TRUE(mxIsClass(run("chandleget", {scalar(set(1, standin::object("thing", {{"a", scalar(1)}})))}), "thing"));
}

TEST_P(Handles, AreFreedOneByOneOrAllAtOnce) {
  for (int k = 0; k < 3; ++k) set(1, zeros(3));
  const std::size_t before = standin::live().persistentArrays;
  run("chandleclear", {scalar(1)}, 0);
  EXPECT_EQ(standin::live().persistentArrays, before - 1);
  EXPECT_EQ(values(run("chandleget")), (Values{0, 2}));
  run("chandleclear", {zeros(0)}, 0);
  EXPECT_EQ(standin::live().persistentArrays, 0u);
  EXPECT_EQ(standin::live().persistentBlocks, 0u);
  EXPECT_EQ(values(run("chandleget")), (Values{0, 2}));
  run("chandleclear", {}, 0);
  expectError("KORV:quarn:NonHandle", "Handle does not exist", "chandleget", {scalar(0)});
  EXPECT_EQ(set(1, zeros(1)), 3.0);
}

TEST_P(Handles, OfTheNonlinearTypeKeepTheirValueInMemoryWhenFreed) {
  set(1003, structure({{"opt", column({1, 2})}}));
  run("chandleclear", {scalar(0)}, 0);
  EXPECT_EQ(standin::live().persistentArrays, 1u);
  EXPECT_EQ(standin::live().persistentBlocks, 0u);
  keptValues = 1;
}

TEST_P(Handles, FreeingTheIndexToBeIssuedNextLowersTheCounter) {
  for (int k = 0; k < 3; ++k) set(1, zeros(1));
  run("chandleclear", {scalar(3)}, 0);
  EXPECT_EQ(set(2, zeros(1)), 2.0);
  // The handle that was at 2 has been overwritten, not destroyed: what it owned stays until the host ends.
  run("chandleclear", {}, 0);
  EXPECT_EQ(standin::live().persistentArrays, 1u);
  EXPECT_EQ(standin::live().persistentBlocks, 1u);
  standin::clearPersistent();
}

TEST_P(Handles, StaleForgedAndFractionalIndicesAreAnswered) {
  set(1, column({4}));
  for (const double index : {7.0, -2.0, 1e300, -1e300, std::nan(""), HUGE_VAL}) {
    expectError("KORV:quarn:NonHandle", "Handle does not exist", "chandleget", {scalar(index)}, 1);
    expectError("KORV:quarn:NonHandle", "Handle does not exist", "chandleget", {text("ans"), scalar(index)}, 1);
  }
  EXPECT_EQ(values(run("chandleget", {scalar(0.9)})), (Values{4}));
  EXPECT_EQ(values(run("chandleget", {int32s({0})})), (Values{4}));
  expectRefusal("the handle's index must be a number", "chandleget", {zeros(0)}, 1);
  expectRefusal("the handle's index must be a number", "chandleget", {cell(1, 1, {nullptr})}, 1);
  // A lookup leaves its key behind.
  EXPECT_EQ(values(run("chandleget")), (Values{-2147483648.0, -2, 0, 7}));
}

TEST_P(Handles, UnknownTypesAreRefusedAndUseNoIndex) {
  for (const double type : {4.0, -1.0, 0.0, 1002.0, std::nan(""), 1e18}) {
    expectError("KORV:quarn:NonHandle", "Not a valid chandle type", "chandleset", {scalar(type), zeros(1)}, 1);
  }
  expectRefusal("expected 3 inputs", "chandleset", {scalar(1)}, 1);
  EXPECT_EQ(set(3, zeros(1)), 0.0);
}

TEST_P(Handles, AVHandleIsRefusedAndUsesItsIndex) {
  expectError("KORV:quarn:NonHandle", "xxx", "chandleset", {scalar(1), standin::object("v_handle", {{"file", zeros(1)}})}, 1);
  expectError("KORV:quarn:NonHandle", "xxx", "chandleset", {scalar(1), standin::oldObject("v_handle", {{"file", zeros(1)}})}, 1);
  EXPECT_EQ(set(1, zeros(1)), 2.0);
}

TEST_P(Handles, AreHandedToFunctions) {
  set(1, column({3, 4}));
  standin::define("total", [](int nlhs, const standin::Arguments& args) -> std::vector<mxArray*> {
    double sum = 0;
    for (const mxArray* a : args) {
      for (const double x : values(a)) sum += x;
    }
    std::vector<mxArray*> out{scalar(sum)};
    if (nlhs == 2) out.push_back(const_cast<mxArray*>(args[0]));
    return out;
  });
  const standin::Result result = quarn(2, "chandleget", {text("total"), scalar(0), scalar(10), scalar(100)});
  ASSERT_FALSE(result.failed) << result.text;
  EXPECT_EQ(mxGetScalar(result.out[0]), 117.0);
  EXPECT_EQ(values(result.out[1]), (Values{3, 4}));
  mxArray* anonymous = standin::functionHandle([](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    mxGetPr(args[0])[0] = -1;  // a duplicate: the handle's own value stays
    return {scalar(static_cast<double>(args.size()))};
  });
  EXPECT_EQ(mxGetScalar(run("chandleget", {anonymous, scalar(0), zeros(1), zeros(1), zeros(1), zeros(1), zeros(1)})), 6.0);
  EXPECT_EQ(values(run("chandleget", {scalar(0)})), (Values{3, 4}));
}

TEST_P(Handles, ErrorsOfFunctionsArriveUnchanged) {
  set(1, column({3}));
  standin::define("fails", [](int, const standin::Arguments&) -> std::vector<mxArray*> { standin::raise("my:id", "my text"); });
  expectError("my:id", "my text", "chandleget", {text("fails"), scalar(0)}, 1);
  expectError("MATLAB:UndefinedFunction", "Undefined function 'nowhere'.", "chandleget", {text("nowhere"), scalar(0)}, 1);
  EXPECT_EQ(values(run("chandleget", {scalar(0)})), (Values{3}));
}

TEST_P(Handles, MoreThanNineInputsAreRefused) {
  set(1, column({3}));
  standin::Arguments args{text("total"), scalar(0)};
  for (int k = 0; k < 7; ++k) args.push_back(zeros(1));
  expectError("KORV:quarn:WrongSize", "varargin too large", "chandleget", args, 1);
}

}  // namespace
