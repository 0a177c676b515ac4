#include "sparse/sparse_view.h"

#include <cstdint>
#include <cstring>
#include <limits>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "numbers/convert.h"

namespace quarn {

namespace {

SparseView denseView(const mxArray* a, const char* name) {
  SparseView v;
  const host::Doubles data = host::doubles(a, name);
  v.pr = data.data;
  v.prLen = data.count;
  v.realPart = data && mxIsComplex(a);
  v.rows = host::rows(a);
  v.cols = host::cols(a);
  return v;
}

void readDims(const host::Fields& a, const char* name, SparseView& v) {
  if (const mxArray* dims = a.get("dims")) {
    const host::Doubles d = host::doubles(dims, "field \"dims\"");
    if (d.count < 2) host::refuse("%s.dims must hold 2 values (rows, cols), got %zu", name, d.count);
    v.rows = toInt(d.data[0]);
    v.cols = toInt(d.data[1]);
    return;
  }
  const mxArray* jc = a.get("jc");
  if (!jc) host::refuse("%s needs a field \"dims\" or a column \"jc\" to give its size, got neither", name);
  v.rows = v.cols = host::rows(jc) - 1;
}

SparseView structView(const host::Fields& a, const char* name) {
  SparseView v;
  const mxArray* pr = a.get("pr");
  if (!pr) return v;
  const host::Doubles values = host::doubles(pr, "field \"pr\"");
  const host::Ints ir = host::int32s(a.get("ir"), "field \"ir\"");
  const host::Ints jc = host::int32s(a.get("jc"), "field \"jc\"");
  v.pr = values.data;
  v.prLen = values.count;
  v.realPart = values && mxIsComplex(pr);
  v.ir = ir.data;
  v.irLen = ir.count;
  v.jc = jc.data;
  v.jcLen = jc.count;
  const mxArray* trans = a.get("trans");
  if (host::count(trans) > 0 && host::number(trans, "field \"trans\"") != 0.0) v.trans = 1;
  readDims(a, name, v);
  return v;
}

}  // namespace

SparseView sparseView(const mxArray* a, const char* name) {
  if (a && mxIsStruct(a)) return structView(host::Fields(a), name);
  bool throughObject = false;
  if (host::isClass(a, "v_handle")) {
    a = host::objectField(a, "file");
    if (!a) host::refuse("%s is a v_handle object without a field \"file\"", name);
    throughObject = true;
  }
  if (!a) return {};
  if (mxIsSparse(a)) host::fail(fixed::nativeSparse);
  SparseView v = mxIsStruct(a) ? structView(host::Fields(a), name) : denseView(a, name);
  v.throughObject = throughObject;
  return v;
}

host::Doubles pmatDoubles(const mxArray* a, const char* name) {
  if (!host::isObject(a)) return host::realDoubles(a, name);
  const mxArray* address = host::objectField(a, "c");
  const bool word = address && mxIsNumeric(address) && !mxIsSparse(address) &&
                    host::count(address) * static_cast<std::size_t>(mxGetElementSize(address)) >= sizeof(std::uint64_t);
  if (!word) {
    host::refuse("%s is an object of class %.60s whose property \"c\" holds no 64-bit address", name, host::className(a));
  }
  std::uint64_t bits = 0;
  std::memcpy(&bits, mxGetData(address), sizeof bits);
  auto* data = reinterpret_cast<double*>(static_cast<std::uintptr_t>(bits));
  return {data, data ? std::numeric_limits<std::size_t>::max() : 0};
}

}  // namespace quarn
