// Host arrays for handle values, made in C++.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "host/mex_api.h"

namespace quarn::bench {

using Field = std::pair<const char*, mxArray*>;

/// rows x cols doubles, column after column; without values all zero.
mxArray* matrix(std::size_t rows, std::size_t cols, const std::vector<double>& values = {});
mxArray* ints(const std::vector<int>& values);
mxArray* scalarStruct(std::initializer_list<Field> fields);

/// A line-compressed matrix structure: "pr", "ir", "jc", "dims", "trans".
mxArray* lines(int rows, int cols, const std::vector<int>& jc, const std::vector<int>& ir, const std::vector<double>& pr, bool trans);

}  // namespace quarn::bench
