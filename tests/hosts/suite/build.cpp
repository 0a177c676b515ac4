#include "build.h"

#include <cstring>

namespace build {

namespace {

void fill(void* to, const Values& from) {
  if (!from.empty()) std::memcpy(to, from.data(), from.size() * sizeof(double));
}

}  // namespace

mxArray* matrix(mwSize m, mwSize n, const Values& values) {
  mxArray* a = mxCreateDoubleMatrix(m, n, mxREAL);
  fill(mxGetPr(a), values);
  return a;
}

mxArray* column(const Values& values) { return matrix(values.size(), 1, values); }
mxArray* zeros(mwSize m, mwSize n) { return mxCreateDoubleMatrix(m, n, mxREAL); }

mxArray* pages(mwSize m, mwSize n, mwSize p, const Values& values) {
  const mwSize dims[3] = {m, n, p};
  mxArray* a = mxCreateNumericArray(3, dims, mxDOUBLE_CLASS, mxREAL);
  fill(mxGetPr(a), values);
  return a;
}

mxArray* complexMatrix(mwSize m, mwSize n, const Values& re, const Values& im) {
  mxArray* a = mxCreateDoubleMatrix(m, n, mxCOMPLEX);
  fill(mxGetPr(a), re);
  fill(mxGetPi(a), im);
  return a;
}

mxArray* scalar(double value) { return mxCreateDoubleScalar(value); }
mxArray* text(const char* characters) { return mxCreateString(characters); }

mxArray* int32s(const std::vector<int>& values) {
  mxArray* a = mxCreateNumericMatrix(values.size(), 1, mxINT32_CLASS, mxREAL);
  if (!values.empty()) std::memcpy(mxGetData(a), values.data(), values.size() * sizeof(int));
  return a;
}

mxArray* cell(mwSize m, mwSize n, const std::vector<mxArray*>& elements) {
  mxArray* a = mxCreateCellMatrix(m, n);
  for (std::size_t k = 0; k < elements.size(); ++k) mxSetCell(a, k, elements[k]);
  return a;
}

mxArray* structure(const Fields& fields) {
  std::vector<const char*> names;
  for (const auto& f : fields) names.push_back(f.first.c_str());
  mxArray* a = mxCreateStructMatrix(1, 1, static_cast<int>(names.size()), names.data());
  for (std::size_t k = 0; k < fields.size(); ++k) mxSetFieldByNumber(a, 0, static_cast<int>(k), fields[k].second);
  return a;
}

mxArray* nativeSparse(const Values& diagonal) {
  const mwSize n = diagonal.size();
  mxArray* a = mxCreateSparse(n, n, n, mxREAL);
  for (mwSize k = 0; k < n; ++k) {
    mxGetPr(a)[k] = diagonal[k];
    mxGetIr(a)[k] = k;
    mxGetJc(a)[k + 1] = k + 1;
  }
  return a;
}

mxArray* compressed(mwSize m, mwSize n, const Values& dense, bool transposed) {
  Values pr;
  std::vector<int> ir, jc{0};
  for (mwSize j = 0; j < n; ++j) {
    for (mwSize i = 0; i < m; ++i) {
      if (dense[i + j * m] == 0.0) continue;
      pr.push_back(dense[i + j * m]);
      ir.push_back(static_cast<int>(i));
    }
    jc.push_back(static_cast<int>(pr.size()));
  }
  const double rows = static_cast<double>(transposed ? n : m);
  const double cols = static_cast<double>(transposed ? m : n);
  return structure({{"pr", column(pr)},
                    {"ir", int32s(ir)},
                    {"jc", int32s(jc)},
                    {"dims", column({rows, cols})},
                    {"trans", scalar(transposed ? 1.0 : 0.0)}});
}

mxArray* tridiagonal(mwSize n, double diagonal, double side) {
  Values dense(n * n);
  for (mwSize i = 0; i < n; ++i) {
    dense[i + i * n] = diagonal;
    if (i > 0) dense[i - 1 + i * n] = side;
    if (i + 1 < n) dense[i + 1 + i * n] = side;
  }
  return compressed(n, n, dense);
}

double lawCode(const char* keyword) {
  double code = 0.0;
  double place = 1.0;
  for (const char* c = keyword; *c; ++c, place *= 256.0) code += place * static_cast<double>(*c);
  return code;
}

Values values(const mxArray* a) {
  const double* data = mxGetPr(a);
  return data ? Values(data, data + mxGetNumberOfElements(a)) : Values{};
}

std::vector<int> ints(const mxArray* a) {
  const auto* data = static_cast<const int*>(mxGetData(a));
  return data ? std::vector<int>(data, data + mxGetNumberOfElements(a)) : std::vector<int>{};
}

Values numbers(mwSize n, double start, double step) {
  Values v(n);
  for (mwSize k = 0; k < n; ++k) v[k] = start + step * static_cast<double>(k);
  return v;
}

const mxArray* field(const mxArray* a, const char* name) { return mxGetField(a, 0, name); }

}  // namespace build
