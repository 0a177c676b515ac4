#include "values.h"

#include <algorithm>

namespace quarn::bench {

mxArray* matrix(std::size_t rows, std::size_t cols, const std::vector<double>& values) {
  mxArray* a = mxCreateDoubleMatrix(static_cast<mwSize>(rows), static_cast<mwSize>(cols), mxREAL);
  std::copy(values.begin(), values.end(), mxGetPr(a));
  return a;
}

mxArray* ints(const std::vector<int>& values) {
  mxArray* a = mxCreateNumericMatrix(static_cast<mwSize>(values.size()), 1, mxINT32_CLASS, mxREAL);
  std::copy(values.begin(), values.end(), static_cast<int*>(mxGetData(a)));
  return a;
}

mxArray* scalarStruct(std::initializer_list<Field> fields) {
  std::vector<const char*> names;
  for (const Field& f : fields) names.push_back(f.first);
  mxArray* s = mxCreateStructMatrix(1, 1, static_cast<int>(names.size()), names.data());
  for (const Field& f : fields) mxSetField(s, 0, f.first, f.second);
  return s;
}

mxArray* lines(int rows, int cols, const std::vector<int>& jc, const std::vector<int>& ir, const std::vector<double>& pr, bool trans) {
  return scalarStruct({{"pr", matrix(pr.size(), 1, pr)},
                       {"ir", ints(ir)},
                       {"jc", ints(jc)},
                       {"dims", matrix(1, 2, {static_cast<double>(rows), static_cast<double>(cols)})},
                       {"trans", matrix(1, 1, {trans ? 1.0 : 0.0})}});
}

}  // namespace quarn::bench
