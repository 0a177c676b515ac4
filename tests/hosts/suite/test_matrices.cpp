// The matrix commands.
#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Matrices);

TEST_P(Matrices, TbbpAddsTheProduct) {
  mxArray* y = column({1, 1, 1});
  mxArray* A = tridiagonal(3, 2, -1);
  run("tbbp", {A, column({1, 2, 3}), y}, 0);
  run("tbbp", {standin::object("v_handle", {{"file", A}}), column({1, 2, 3}), y}, 0);
  EXPECT_EQ(values(y), (Values{1, 1, 9}));
  expectError("", "Implemented for sparse matrices", "tbbp", {zeros(3, 3), zeros(3), y});
  expectError("", "ir must be int32", "tbbp", {nativeSparse({1, 2, 3}), zeros(3), y});
  expectRefusal("expected 4 inputs", "tbbp", {zeros(3)});
}

TEST_P(Matrices, ProjectLeftReturnsANewMatrixOrWritesInPlace) {
  mxArray* a = matrix(3, 2, {1, 0, 0, 1, 2, 3});
  mxArray* S = tridiagonal(3, 2, -1);
  mxArray* P = run("c<-a'*b", {a, S});
  EXPECT_EQ(mxGetM(P), 2u);
  EXPECT_EQ(values(P), (Values{2, 0, -1, 0, 0, 4}));
  mxArray* c = zeros(2, 3);
  EXPECT_EQ(run("c<-a'*b", {a, S, c}, 0), nullptr);
  EXPECT_EQ(values(c), values(P));
  expectError("KORV:quarn:WrongSize", "quarn c<-a'*b : vector a has a wrong size", "c<-a'*b", {zeros(2, 2), S}, 1);
  expectError("", "quarn c<-a'*b : vector a has a wrong size", "c<-a'*b", {zeros(2, 2), compressed(3, 3, Values(9, 1), true)}, 1);
  expectRefusal("c must be a full real double 2x3 array", "c<-a'*b", {a, S, zeros(3, 2)});
  EXPECT_EQ(mxGetNumberOfElements(run("c<-a'*b", {zeros(3, 0), S})), 0u);
}

TEST_P(Matrices, TripleProductsAreRealOrComplex) {
  mxArray* k = tridiagonal(2, 2, -1);
  mxArray* flags = int32s({1, 0, 0});
  mxArray* real = matrix(2, 2, {1, 0, 0, 1});
  mxArray* P = run("abc", {real, k, real, flags});
  EXPECT_FALSE(mxIsComplex(P));
  EXPECT_EQ(values(P), (Values{2, -1, -1, 2}));
  P = run("abc", {real, k, complexMatrix(2, 2, {1, 0, 0, 1}, {0, 1, 0, 0}), flags});
  ASSERT_TRUE(mxIsComplex(P));
  const double* imaginary = mxGetPi(P);
  EXPECT_EQ(Values(imaginary, imaginary + 4), (Values{-1, 2, 0, 0}));
  expectError("", "quarn abc : b must be int32 sparse", "abc", {real, real, real, flags}, 1);
  expectError("", "int32 needed : quarn('abc',TA,k,TB,int32([1 0 0]));", "abc", {real, k, real, column({1, 0, 0})}, 1);
  expectError("", "quarn('abc')", "abc", {real, k, real, int32s({1, 0, 1})}, 1);
  expectError("", "abc : a and b have wrong size", "abc", {zeros(3, 2), k, real, flags}, 1);
  expectError("", "abc : b and c have wrong size", "abc", {real, k, zeros(3, 2), flags}, 1);
  EXPECT_EQ(mxGetNumberOfElements(run("abc", {zeros(2, 0), k, zeros(2, 0), flags})), 0u);
}

TEST_P(Matrices, SetSparseOverwritesInPlaceThroughStructuresOnly) {
  mxArray* S = tridiagonal(2, 2, -1);
  run("setsparse", {S, int32s({1, 0}), zeros(0), column({9, 8, 7})}, 0);
  EXPECT_EQ(ints(field(S, "ir")), (std::vector<int>{1, 0, 0, 1}));
  EXPECT_EQ(values(field(S, "pr")), (Values{9, 8, 7, 2}));
  run("setsparse", {S, column({5, 5}), zeros(0), zeros(0)}, 0);
  EXPECT_EQ(ints(field(S, "ir")), (std::vector<int>{1, 0, 0, 1}));
  // An object of an old-style class shows its own memory; a property is a copy, so a write does not reach the object.
  mxArray* oldStyle = standin::oldObject("v_handle", {{"file", tridiagonal(2, 2, -1)}});
  run("setsparse", {oldStyle, int32s({}), zeros(0), column({9})}, 0);
  EXPECT_EQ(values(field(field(oldStyle, "file"), "pr"))[0], 9.0);
  mxArray* file = tridiagonal(2, 2, -1);
  run("setsparse", {standin::object("v_handle", {{"file", file}}), int32s({}), zeros(0), column({9})}, 0);
  EXPECT_EQ(values(field(file, "pr"))[0], 2.0);
  expectRefusal("pr holds 5 values, its target in M has room for 4", "setsparse", {S, int32s({}), zeros(0), zeros(5)});
  expectRefusal("ir holds 5 values, its target in M has room for 4", "setsparse", {S, int32s({0, 0, 0, 0, 0})});
}

TEST_P(Matrices, SetSparseShowsInEveryVariableThatSharesTheData) {
  mxArray* S = tridiagonal(2, 2, -1);
  mxArray* other = standin::share(S);
  run("setsparse", {S, int32s({}), zeros(0), column({9})}, 0);
  EXPECT_EQ(values(field(other, "pr"))[0], 9.0);
}

TEST_P(Matrices, DirectZrReturnsComplexZeros) {
  mxArray* A = complexMatrix(2, 2, {1, 2, 3, 4}, {1, 2, 3, 4});
  mxArray* B = complexMatrix(2, 3, Values(6, 1), Values(6, 1));
  mxArray* X = run("directzr", {A, cell(1, 2, {zeros(2, 2), nullptr}), B, matrix(4, 2, Values(8, 1))});
  ASSERT_TRUE(mxIsComplex(X));
  EXPECT_EQ(mxGetM(X), 2u);
  EXPECT_EQ(mxGetN(X), 12u);
  EXPECT_EQ(values(X), Values(24, 0.0));
  expectError("", "Complex numbers needed.", "directzr", {A, cell(1, 1, {}), zeros(2, 2), zeros(1)}, 1);
  expectError("", "Complex numbers needed.", "directzr", {zeros(2, 2), cell(1, 1, {}), B, zeros(1)}, 1);
}

TEST_P(Matrices, RetiredCommandsCheckAndStop) {
  mxArray* k = nativeSparse({1, 2});
  mxArray* wide = mxCreateSparse(2, 3, 1, mxREAL);
  expectError("", "quarn dtkt : b must be sparse", "dtkt", {zeros(2), zeros(2)}, 1);
  expectError("", "quarn  : k must be square", "dtkt", {zeros(2), wide}, 1);
  expectError("", "base has a wrong size", "dtkt", {zeros(3), k}, 1);
  expectError("", "quarn  : reimplement for mkls", "dtkt", {zeros(2), k}, 1);
  EXPECT_EQ(mxGetM(run("dtkt", {zeros(2, 0), k})), 0u);
  expectError("", "quarn ta'*k*tb : k must be sparse", "ta'*k*tb", {zeros(2), zeros(2), zeros(2)}, 1);
  expectError("", "ta and k : Wrong size", "ta'*k*tb", {zeros(3), k, zeros(2)}, 1);
  expectError("", "k and tb :Wrong size", "ta'*k*tb", {zeros(2), k, zeros(3)}, 1);
  expectError("", "ir problem", "ta'*k*tb", {zeros(2), k, zeros(2)}, 1);
  expectError("", "Three inputs required.", "igsm", {zeros(2)}, 1);
  expectError("", "phi must be full", "igsm", {k, k}, 1);
  expectError("", "k must be sparse", "igsm", {zeros(2), zeros(2)}, 1);
  expectError("", "Inner matrix dimensions must agree.", "igsm", {zeros(2), wide}, 1);
  expectError("", "ir problem", "igsm", {zeros(2), k}, 1);
  EXPECT_EQ(mxGetN(run("igsm", {zeros(2, 0), k})), 2u);
}

TEST_P(Matrices, CommandsWithoutOperandsAreRefused) {
  for (const char* command :
       {"setsparse", "c<-a'*b", "dtkt", "abc", "ta'*k*tb", "directzr", "igsm", "tbbp", "residual", "chandlediagnewmark", "energies"}) {
    EXPECT_TRUE(quarn(1, command).failed) << command;
  }
  for (const char* command : {"c<-a'*b", "dtkt", "abc", "ta'*k*tb", "directzr", "igsm", "tbbp", "residual", "chandlediagnewmark"}) {
    EXPECT_TRUE(quarn(1, command, {zeros(1)}).failed) << command;
  }
}

}  // namespace
