#include "arrays.h"

#include <algorithm>

namespace fuzz {

namespace {

constexpr mxClassID numeric[] = {mxDOUBLE_CLASS, mxINT32_CLASS,  mxSINGLE_CLASS, mxLOGICAL_CLASS, mxCHAR_CLASS,
                                 mxINT8_CLASS,   mxUINT16_CLASS, mxUINT64_CLASS, mxINT64_CLASS};

}  // namespace

double* ordinary(mxArray* a) { return a && mxIsDouble(a) && !mxIsSparse(a) ? mxGetPr(a) : nullptr; }

mxArray* Maker::keep(mxArray* a) {
  if (pool.size() < 64) pool.push_back(a);
  return a;
}

mxArray* Maker::values(const std::vector<mwSize>& dims, mxClassID id, bool isComplex) {
  mxArray* a = mxCreateNumericArray(dims.size(), dims.data(), id, isComplex ? mxCOMPLEX : mxREAL);
  const std::size_t n = mxGetNumberOfElements(a);
  for (void* part : {mxGetData(a), mxGetImagData(a)}) {
    if (!part) continue;
    for (std::size_t k = 0; k < std::min<std::size_t>(n, 64); ++k) {
      if (id == mxDOUBLE_CLASS) static_cast<double*>(part)[k] = in.number();
      if (id == mxINT32_CLASS) static_cast<int*>(part)[k] = in.index(8);
    }
  }
  return a;
}

mxArray* Maker::changed(mxArray* a) {
  if (!a || !in.rarely(50)) return a;
  switch (in.below(6)) {
    case 0:
      return anything(1);
    case 1:
      return nullptr;
    case 2:
      return pool.empty() ? a : standin::share(pool[in.below(pool.size())]);
    case 3:
      return standin::object("v_handle", {{"file", a}}, in.rarely(8) ? 0 : 1);
    case 4:
      return standin::oldObject("v_handle", {{"file", a}});
    default: {
      // An address in the property "c" is taken at its word, so the only one to be forged is null.
      const bool address = in.rarely(3);
      return standin::object("thing", {{address ? "c" : "d", address ? mxCreateNumericMatrix(1, 1, mxUINT64_CLASS, mxREAL) : a}});
    }
  }
}

mxArray* Maker::doubles(std::size_t m, std::size_t n, std::size_t pages) {
  std::vector<mwSize> dims{m, n};
  if (pages != 1) dims.push_back(pages);
  mxClassID id = mxDOUBLE_CLASS;
  bool isComplex = false;
  if (in.rarely()) {
    mwSize& extent = dims[in.below(dims.size())];
    const std::size_t how = in.below(5);
    extent = how == 0 ? 0 : how == 1 ? extent + 1 : how == 2 && extent > 0 ? extent - 1 : how == 3 ? 1 : 2;
  }
  if (in.rarely(120)) id = numeric[in.below(sizeof numeric / sizeof *numeric)];
  if (in.rarely(120)) isComplex = id != mxCHAR_CLASS && id != mxLOGICAL_CLASS;
  return changed(keep(values(dims, id, isComplex)));
}

mxArray* Maker::complexDoubles(std::size_t m, std::size_t n) { return changed(keep(values({m, n}, mxDOUBLE_CLASS, true))); }

mxArray* Maker::number(double value) {
  if (in.rarely(60)) value = in.number();
  return changed(mxCreateDoubleScalar(value));
}

mxArray* Maker::int32s(const std::vector<int>& wanted) {
  const std::size_t n = in.rarely(60) ? in.below(wanted.size() + 2) : wanted.size();
  mxArray* a = mxCreateNumericMatrix(n, 1, in.rarely(150) ? mxUINT32_CLASS : mxINT32_CLASS, mxREAL);
  for (std::size_t k = 0; k < n; ++k) {
    static_cast<int*>(mxGetData(a))[k] = in.rarely(60) ? in.index(12) : k < wanted.size() ? wanted[k] : 0;
  }
  return changed(keep(a));
}

mxArray* Maker::text(const char* characters) { return changed(mxCreateString(in.rarely(60) ? "" : characters)); }

mxArray* Maker::matrix(std::size_t m, std::size_t n, bool transposed) {
  if (in.rarely(30)) return doubles(m, n);
  if (in.rarely(60)) return nativeSparse(m, n);
  std::vector<int> ir, jc{0};
  const bool diagonal = in.rarely(4);
  for (std::size_t j = 0; j < n; ++j) {
    const std::size_t entries = m == 0 ? 0 : diagonal ? 1 : 1 + in.below(3);
    for (std::size_t k = 0; k < entries; ++k) ir.push_back(static_cast<int>(diagonal ? j % m : in.below(m)));
    jc.push_back(static_cast<int>(ir.size()));
  }
  const double rows = static_cast<double>(transposed ? n : m);
  const double cols = static_cast<double>(transposed ? m : n);
  mxArray* dims = mxCreateDoubleMatrix(1, 2, mxREAL);
  mxGetPr(dims)[0] = in.rarely(60) ? in.index(9) : rows;
  mxGetPr(dims)[1] = in.rarely(60) ? in.index(9) : cols;
  return structure({{"pr", doubles(ir.size())},
                    {"ir", in.rarely(60) ? nullptr : int32s(ir)},
                    {"jc", in.rarely(80) ? nullptr : int32s(jc)},
                    {"dims", m == n && in.rarely(5) ? nullptr : dims},
                    {"trans", number(transposed ? 1.0 : 0.0)}});
}

mxArray* Maker::nativeSparse(std::size_t m, std::size_t n) {
  mxArray* a = in.rarely(6) ? mxCreateSparseLogicalMatrix(m, n, n) : mxCreateSparse(m, n, n, in.rarely(6) ? mxCOMPLEX : mxREAL);
  for (std::size_t j = 0; j < n; ++j) {
    const std::size_t filled = std::min(j + 1, m > 0 ? n : 0);
    mxGetJc(a)[j + 1] = filled;
    if (filled > j) mxGetIr(a)[j] = j % m;
  }
  return a;
}

mxArray* Maker::cell(std::size_t m, std::size_t n, const std::vector<mxArray*>& elements) {
  mxArray* a = mxCreateCellMatrix(m, n);
  for (std::size_t k = 0; k < std::min(elements.size(), m * n); ++k) mxSetCell(a, k, in.rarely(60) ? nullptr : elements[k]);
  return a;
}

mxArray* Maker::structure(const Fields& fields) {
  std::vector<const char*> names;
  std::vector<mxArray*> kept;
  for (const auto& [name, value] : fields) {
    if (!value || in.rarely(100)) continue;
    names.push_back(name);
    kept.push_back(in.rarely(100) ? nullptr : value);
  }
  std::vector<mwSize> dims{1, 1};
  if (in.rarely(80)) dims[in.below(2)] = in.below(3);
  if (in.rarely(30)) dims.push_back(in.below(5));
  mxArray* a = mxCreateStructArray(dims.size(), dims.data(), static_cast<int>(names.size()), names.data());
  if (mxGetNumberOfElements(a) > 0) {
    for (std::size_t k = 0; k < kept.size(); ++k) mxSetFieldByNumber(a, 0, static_cast<int>(k), kept[k]);
  }
  return changed(a);
}

mxArray* Maker::anything(int depth) {
  switch (in.below(depth > 3 ? 5 : 11)) {
    case 0:
      return values({in.below(4), in.below(4)}, numeric[in.below(sizeof numeric / sizeof *numeric)], in.rarely(4));
    case 1:
      return values({in.below(3), in.below(3), in.below(4)}, mxDOUBLE_CLASS, false);
    case 2:
      return values({in.rarely(2) ? std::size_t{1} << (in.byte() % 60) : 0, 0}, mxDOUBLE_CLASS, false);
    case 3:
      return nativeSparse(in.below(4), in.below(4));
    case 4:
      return mxCreateString(in.rarely(2) ? "rotcenter" : "");
    case 5:
      return cell(in.below(3), in.below(4), {anything(depth + 1), anything(depth + 1)});
    case 6:
      return structure({{"pr", anything(depth + 1)}, {"unl", anything(depth + 1)}, {"type", anything(depth + 1)}});
    case 7:
      return standin::object("thing", {{"x", anything(depth + 1)}});
    case 8:
      return standin::object("v_handle", {{"file", anything(depth + 1)}});
    case 9:
      return standin::functionHandle([](int, const standin::Arguments&) -> std::vector<mxArray*> { return {}; });
    default:
      return matrix(size(), size(), in.rarely(2));
  }
}

}  // namespace fuzz
