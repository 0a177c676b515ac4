// Objects, function handles, and arrays that share their data.
#include "array.h"

namespace standin {

namespace {

mxArray* newObject(Kind kind, const std::string& className, const Properties& properties, mwSize n) {
  const mwSize dims[2] = {1, n};
  mxArray* a = newArray(mxOBJECT_CLASS, 2, dims);
  const Busy busy;
  a->kind = kind;
  a->className = className;
  for (const auto& [name, value] : properties) {
    a->names.push_back(name);
    if (n == 0) continue;  // nothing to hold it
    a->elements.push_back(value);
    adopt(value);
  }
  a->elements.resize(n * a->names.size());
  return a;
}

}  // namespace

mxArray* object(const std::string& className, const Properties& properties, mwSize n) {
  return newObject(Kind::object, className, properties, n);
}

mxArray* oldObject(const std::string& className, const Properties& fields) { return newObject(Kind::oldObject, className, fields, 1); }

mxArray* functionHandle(Function function) {
  const mwSize dims[2] = {1, 1};
  mxArray* a = newArray(mxFUNCTION_CLASS, 2, dims);
  a->kind = Kind::functionHandle;
  a->function = std::move(function);
  return a;
}

mxArray* share(const mxArray* a) {
  const mxArray& from = deref(a, "share");
  mxArray* to = newArray(from.id, from.dims.size(), from.dims.data());
  const Busy busy;
  Frame* frame = to->frame;
  *to = from;
  to->frame = frame;
  for (mxArray*& element : to->elements) {
    if (!element) continue;
    element = share(element);
    adopt(element);
  }
  return to;
}

}  // namespace standin

using namespace standin;

mxArray* mxGetProperty(const mxArray* a, mwIndex i, const char* name) {
  const mxArray& array = deref(a, "mxGetProperty");
  if (array.kind != Kind::object) return nullptr;
  if (i >= array.count()) misuse("mxGetProperty of element %zu of %zu", i, array.count());
  const int k = array.nameIndex(name);
  const mxArray* value = k < 0 ? nullptr : array.elements[i * array.names.size() + static_cast<std::size_t>(k)];
  return value ? mxDuplicateArray(value) : nullptr;
}
