// Arrays for the tests on the stand-in host, as a script would write them.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "standin.h"

namespace build {

using Values = std::vector<double>;
using Fields = std::vector<std::pair<std::string, mxArray*>>;

mxArray* matrix(mwSize m, mwSize n, const Values& values);
mxArray* column(const Values& values);
mxArray* zeros(mwSize m, mwSize n = 1);
mxArray* pages(mwSize m, mwSize n, mwSize p, const Values& values);
mxArray* complexMatrix(mwSize m, mwSize n, const Values& re, const Values& im);
mxArray* scalar(double value);
mxArray* text(const char* characters);
mxArray* int32s(const std::vector<int>& values);
mxArray* cell(mwSize m, mwSize n, const std::vector<mxArray*>& elements);
mxArray* structure(const Fields& fields);
/// The host's own sparse matrix, diagonal.
mxArray* nativeSparse(const Values& diagonal);
/// A structure of the compressed columns of a dense column-major m x n matrix.
mxArray* compressed(mwSize m, mwSize n, const Values& values, bool transposed = false);
/// A stiffness-like tridiagonal matrix of n lines.
mxArray* tridiagonal(mwSize n, double diagonal, double side);

/// What a law's keyword stands for in "opt".
double lawCode(const char* keyword);

Values values(const mxArray* a);
std::vector<int> ints(const mxArray* a);
Values numbers(mwSize n, double start, double step);
const mxArray* field(const mxArray* a, const char* name);

}  // namespace build
