// The errors with a fixed identifier or text: the one list of them. A text is interface to the letter, blanks included; docs/commands.md
// lists them with the same words, and the tests read them from here.
#pragma once

#include "host/errors.h"

namespace quarn::fixed {

using host::FixedError;

// One line an error: identifier, text, what raises it.
// clang-format off
inline constexpr FixedError noRealPart{"KORV:quarn:empty", "no real part", "a mass handle without values"};
inline constexpr FixedError notAMass{"KORV:quarn:empty", "Error not a valid mass", "a mass handle that is not sparse"};
inline constexpr FixedError noOptions{"KORV:quarn:empty", "ReportEB opt", "an element without `opt`"};
inline constexpr FixedError powerParameters{"KORV:quarn:empty", "FuPower requires 3 parameters", "an element of law `Power` with a shorter `opt`"};
inline constexpr FixedError noPages{"KORV:quarn:empty", "Incorrect unl", "an element of law `DahlC` or `Clima2` whose `unl` has no pages"};
inline constexpr FixedError unknownLaw{"KORV:quarn:empty", "Unknown .opt(1) choice", "an element whose `opt(1)` is no law's code"};
inline constexpr FixedError fullLoadsExpected{"KORV:quarn:Invalid", "Full r expected", "an integrator with a sparse `r`, `tft` or `data`"};
inline constexpr FixedError loadTableRows{"KORV:quarn:Invalid", "Inconsistent Nb & NT", "an integrator whose `tft` has not Nb + 1 rows"};
inline constexpr FixedError dataLength{"KORV:quarn:Invalid", "Inconsistent data length", "an integrator whose `data` has not 6 values"};
inline constexpr FixedError workArraySize{"KORV:quarn:Invalid", "wrong uva size", "`chandlediagnewmark`: work array too short"};
inline constexpr FixedError identicalVA{"KORV:quarn:Invalid", "Identical v & a", "`chandlediagnewmark`: one array for both"};
inline constexpr FixedError identicalVU{"KORV:quarn:Invalid", "Identical v & u", "`chandlediagnewmark`: one array for both"};
inline constexpr FixedError identicalAU{"KORV:quarn:Invalid", "Identical a & u", "`chandlediagnewmark`: one array for both"};
inline constexpr FixedError statesTooLong{"KORV:quarn:Invalid", "iu+Nistate too large", "`chandlediagnewmark`: an element's states end beyond `out.def`"};
inline constexpr FixedError complexResidual{"KORV:quarn:Invalid", "Real numbers for r", "`residual`, `chandlediagnewmark`: complex first argument"};
inline constexpr FixedError notAHandleList{"KORV:quarn:Invalid", "Expecting chandle vector", "`chandlediagnewmark`: the list is neither a cell nor a `chandle` object"};
inline constexpr FixedError offsetsNotInt32{"KORV:quarn:conform", "iopt must be int32", "an integrator or an element"};
inline constexpr FixedError unknownHandleType{"KORV:quarn:NonHandle", "Not a valid chandle type", "`chandleset`, and a cell list with an unknown `type`"};
inline constexpr FixedError noSuchHandle{"KORV:quarn:NonHandle", "Handle does not exist", "`chandleget`, and a `chandle` vector with an index that has no handle"};
inline constexpr FixedError valueIsObject{"KORV:quarn:NonHandle", "xxx", "`chandleset` of a `v_handle` object"};
inline constexpr FixedError tooManyArguments{"KORV:quarn:WrongSize", "varargin too large", "`chandleget` with more than 9 inputs"};
inline constexpr FixedError projectionRows{"KORV:quarn:WrongSize", "quarn c<-a'*b : vector a has a wrong size", "`c<-a'*b`"};
inline constexpr FixedError unknownCommand{nullptr, "quarn : Unknown command", "any other word"};
inline constexpr FixedError stringWord{nullptr, "quarn : a command word is a character vector, got string", "a word in double quotes in MATLAB, which is a string object"};
inline constexpr FixedError nativeSparse{nullptr, "ir must be int32", "every command and handle that gets a native sparse matrix where it needs a sparse structure"};
inline constexpr FixedError complexState{nullptr, "Real numbers needed.", "`residual`, `chandlediagnewmark`: complex `u`, `v` or `a`"};
inline constexpr FixedError fewMatrices{nullptr, "model.K must be a 3*1 cell array", "`residual`: a matrix cell with fewer than three *columns*"};
inline constexpr FixedError sparseOnly{nullptr, "Implemented for sparse matrices", "`residual`, `tbbp`: a full matrix"};
inline constexpr FixedError unknownTerm{nullptr, "Not a supported residual", "not reachable by a command"};
inline constexpr FixedError addsSparseOnly{nullptr, "Add_Mt_u implemented for sparse matrices", "an element whose `b` is full without `trans`"};
inline constexpr FixedError takesTransposedOnly{nullptr, "Prod_Mt_u implemented for transposed sparse matrices", "an element whose `c` is sparse without `trans`"};
inline constexpr FixedError noCommittedPage{nullptr, "Need unlj1 as last dim", "an element of law `Maxw` whose `unl` or `vnl` has too few pages"};
inline constexpr FixedError projectionRowsTransposed{nullptr, "quarn c<-a'*b : vector a has a wrong size", "`c<-a'*b` with a matrix that has `trans` set"};
inline constexpr FixedError abcNotSparse{nullptr, "quarn abc : b must be int32 sparse", "`abc`"};
inline constexpr FixedError abcFlagsNotInt32{nullptr, "int32 needed : quarn('abc',TA,k,TB,int32([1 0 0]));", "`abc`"};
inline constexpr FixedError abcFlags{nullptr, "quarn('abc')", "`abc` with other flags than [1 0 0]"};
inline constexpr FixedError abcRows{nullptr, "abc : a and b have wrong size", "`abc`"};
inline constexpr FixedError abcColumns{nullptr, "abc : b and c have wrong size", "`abc`"};
inline constexpr FixedError dtktNotSparse{nullptr, "quarn dtkt : b must be sparse", "`dtkt`"};
inline constexpr FixedError dtktNotSquare{nullptr, "quarn  : k must be square", "`dtkt`"};
inline constexpr FixedError dtktBaseSize{nullptr, "base has a wrong size", "`dtkt`"};
inline constexpr FixedError dtktRetired{nullptr, "quarn  : reimplement for mkls", "`dtkt`, always when there is something to do"};
inline constexpr FixedError tktNotSparse{nullptr, "quarn ta'*k*tb : k must be sparse", "`ta'*k*tb`"};
inline constexpr FixedError tktRows{nullptr, "ta and k : Wrong size", "`ta'*k*tb`"};
inline constexpr FixedError tktColumns{nullptr, "k and tb :Wrong size", "`ta'*k*tb`"};
inline constexpr FixedError projectionRetired{nullptr, "ir problem", "`ta'*k*tb` always at its end, `igsm` when there is something to do"};
inline constexpr FixedError igsmInputs{nullptr, "Three inputs required.", "`igsm`"};
inline constexpr FixedError igsmBasis{nullptr, "phi must be full", "`igsm`"};
inline constexpr FixedError igsmNotSparse{nullptr, "k must be sparse", "`igsm`"};
inline constexpr FixedError igsmSize{nullptr, "Inner matrix dimensions must agree.", "`igsm`"};
inline constexpr FixedError complexNeeded{nullptr, "Complex numbers needed.", "`directzr`"};
// clang-format on

}  // namespace quarn::fixed
