// Cells and structures, and copies of everything.
#include <cstring>

#include "array.h"

int mxArray_tag::nameIndex(const char* name) const {
  for (std::size_t k = 0; k < names.size(); ++k) {
    if (names[k] == name) return static_cast<int>(k);
  }
  return -1;
}

namespace standin {

namespace {

mxArray*& place(const mxArray* a, mwIndex element, std::size_t field, const char* function) {
  const std::size_t fields = a->id == mxCELL_CLASS ? 1 : a->names.size();
  if (element >= a->count() || field >= fields) {
    misuse("%s of element %zu, field %zu of an array of %zu elements with %zu fields", function, element, field, a->count(), fields);
  }
  return const_cast<mxArray*>(a)->elements[element * fields + field];
}

void put(mxArray*& target, mxArray* value) {
  const Busy busy;
  adopt(value);
  target = value;
}

bool hasFields(const mxArray& a) { return a.id == mxSTRUCT_CLASS || a.kind == Kind::oldObject; }

}  // namespace
}  // namespace standin

using namespace standin;

mxArray* mxCreateCellArray(mwSize ndim, const mwSize* dims) {
  mxArray* a = newArray(mxCELL_CLASS, ndim, dims);
  const Busy busy;
  a->elements.resize(a->count());
  return a;
}

mxArray* mxCreateCellMatrix(mwSize m, mwSize n) {
  const mwSize dims[2] = {m, n};
  return mxCreateCellArray(2, dims);
}

mxArray* mxCreateStructArray(mwSize ndim, const mwSize* dims, int fields, const char** names) {
  mxArray* a = newArray(mxSTRUCT_CLASS, ndim, dims);
  const Busy busy;
  a->names.assign(names, names + fields);
  a->elements.resize(a->count() * a->names.size());
  return a;
}

mxArray* mxCreateStructMatrix(mwSize m, mwSize n, int fields, const char** names) {
  const mwSize dims[2] = {m, n};
  return mxCreateStructArray(2, dims, fields, names);
}

bool mxIsStruct(const mxArray* a) { return deref(a, "mxIsStruct").id == mxSTRUCT_CLASS; }

mxArray* mxGetCell(const mxArray* a, mwIndex i) {
  if (!mxIsCell(a)) misuse("mxGetCell of a %s array", mxGetClassName(a));
  return place(a, i, 0, "mxGetCell");
}

void mxSetCell(mxArray* a, mwIndex i, mxArray* value) {
  if (!mxIsCell(a)) misuse("mxSetCell of a %s array", mxGetClassName(a));
  put(place(a, i, 0, "mxSetCell"), value);
}

int mxGetNumberOfFields(const mxArray* a) { return static_cast<int>(deref(a, "mxGetNumberOfFields").names.size()); }

const char* mxGetFieldNameByNumber(const mxArray* a, int field) {
  const mxArray& array = deref(a, "mxGetFieldNameByNumber");
  const auto k = static_cast<std::size_t>(field);
  return k < array.names.size() ? array.names[k].c_str() : nullptr;
}

int mxGetFieldNumber(const mxArray* a, const char* name) { return deref(a, "mxGetFieldNumber").nameIndex(name); }

mxArray* mxGetField(const mxArray* a, mwIndex i, const char* name) {
  const mxArray& array = deref(a, "mxGetField");
  if (!hasFields(array)) return nullptr;
  const int k = array.nameIndex(name);
  return k < 0 ? nullptr : place(a, i, static_cast<std::size_t>(k), "mxGetField");
}

mxArray* mxGetFieldByNumber(const mxArray* a, mwIndex i, int field) {
  if (!hasFields(deref(a, "mxGetFieldByNumber"))) return nullptr;
  return place(a, i, static_cast<std::size_t>(field), "mxGetFieldByNumber");
}

void mxSetField(mxArray* a, mwIndex i, const char* name, mxArray* value) {
  const int k = deref(a, "mxSetField").nameIndex(name);
  if (k < 0) misuse("mxSetField of an unknown field %s", name);
  put(place(a, i, static_cast<std::size_t>(k), "mxSetField"), value);
}

void mxSetFieldByNumber(mxArray* a, mwIndex i, int field, mxArray* value) {
  put(place(a, i, static_cast<std::size_t>(field), "mxSetFieldByNumber"), value);
}

mxArray* mxDuplicateArray(const mxArray* a) {
  const mxArray& from = deref(a, "mxDuplicateArray");
  mxArray* to = newArray(from.id, from.dims.size(), from.dims.data());
  {
    const Busy busy;
    const std::size_t bytes = (from.sparse ? from.nzmax : from.count()) * elementSize(from.id);
    const std::size_t indexBytes = sizeof(mwIndex);
    to->kind = from.kind;
    to->sparse = from.sparse;
    to->complex = from.complex;
    to->className = from.className;
    to->nzmax = from.nzmax;
    to->re = copyData(from.re, bytes);
    to->im = copyData(from.im, bytes);
    to->ir = copyData(from.ir, from.nzmax * indexBytes);
    to->jc = copyData(from.jc, from.sparse ? (from.dims[1] + 1) * indexBytes : 0);
    to->names = from.names;
    to->function = from.function;
    to->elements.resize(from.elements.size());
  }
  // Elements may fail to be had: what there is by then is reclaimed with the call.
  for (std::size_t k = 0; k < from.elements.size(); ++k) {
    if (from.elements[k]) put(to->elements[k], mxDuplicateArray(from.elements[k]));
  }
  return to;
}
