#include "host/arrays.h"

#include <climits>
#include <cstdio>

#include "host/errors.h"

namespace quarn::host {

namespace {

int narrow(std::size_t n) { return n > INT_MAX ? INT_MAX : static_cast<int>(n); }

[[noreturn]] void refuseDoubles(const mxArray* a, const char* name) {
  refuse("%s must be a full real double array, got %s", name, describe(a).text);
}

}  // namespace

std::size_t count(const mxArray* a) { return a ? static_cast<std::size_t>(mxGetNumberOfElements(a)) : 0; }

std::size_t rowCount(const mxArray* a) { return a ? static_cast<std::size_t>(mxGetM(a)) : 0; }

// Octave's mxGetN leaks its list of dimensions once a cell or a complex array is looked into, so the count is divided where that is
// possible.
std::size_t columnCount(const mxArray* a) {
  const std::size_t m = rowCount(a);
  return m > 0 ? count(a) / m : a ? static_cast<std::size_t>(mxGetN(a)) : 0;
}

int rows(const mxArray* a) { return narrow(rowCount(a)); }

int cols(const mxArray* a) { return narrow(columnCount(a)); }

const char* nameOfClass(mxClassID id) {
  struct Row {
    mxClassID id;
    const char* name;
  };
  constexpr Row rows[] = {{mxCELL_CLASS, "cell"},     {mxSTRUCT_CLASS, "struct"}, {mxLOGICAL_CLASS, "logical"},
                          {mxCHAR_CLASS, "char"},     {mxDOUBLE_CLASS, "double"}, {mxSINGLE_CLASS, "single"},
                          {mxINT8_CLASS, "int8"},     {mxUINT8_CLASS, "uint8"},   {mxINT16_CLASS, "int16"},
                          {mxUINT16_CLASS, "uint16"}, {mxINT32_CLASS, "int32"},   {mxUINT32_CLASS, "uint32"},
                          {mxINT64_CLASS, "int64"},   {mxUINT64_CLASS, "uint64"}, {mxFUNCTION_CLASS, "function_handle"}};
  for (const Row& row : rows) {
    if (row.id == id) return row.name;
  }
  return "unknown";
}

const char* className(const mxArray* a) {
  const char* name = mxGetClassName(a);
  return name ? name : nameOfClass(mxGetClassID(a));
}

Description describe(const mxArray* a) {
  Description d{};
  if (!a) {
    std::snprintf(d.text, sizeof d.text, "nothing");
    return d;
  }
  const char* kind = mxIsSparse(a) ? "sparse " : mxIsComplex(a) ? "complex " : "";
  std::snprintf(d.text, sizeof d.text, "%s%.60s %dx%d", kind, className(a), rows(a), cols(a));
  return d;
}

bool isObject(const mxArray* a) {
  return a && !mxIsNumeric(a) && !mxIsStruct(a) && !mxIsCell(a) && !mxIsChar(a) && !mxIsLogical(a) && !mxIsClass(a, "function_handle");
}

// Asking Octave for the class name of a struct or cell leaks the name once the array is looked into, and of any array makes a string.
bool isClass(const mxArray* a, const char* className) {
  return a && !mxIsNumeric(a) && !mxIsStruct(a) && !mxIsCell(a) && mxIsClass(a, className);
}

bool isRealDouble(const mxArray* a) { return a && mxIsDouble(a) && !mxIsSparse(a) && !mxIsComplex(a); }

bool holdsDoubles(const mxArray* a) { return count(a) == 0 || (mxIsDouble(a) && !mxIsSparse(a)); }

bool holdsReals(const mxArray* a) { return count(a) == 0 || isRealDouble(a); }

Doubles doubles(const mxArray* a, const char* name) {
  const std::size_t n = count(a);
  if (n == 0) return {};
  if (!mxIsDouble(a) || mxIsSparse(a)) refuseDoubles(a, name);
  return {mxGetPr(a), n};
}

Doubles realDoubles(const mxArray* a, const char* name) {
  const std::size_t n = count(a);
  if (n == 0) return {};
  if (!isRealDouble(a)) refuseDoubles(a, name);
  return {mxGetPr(a), n};
}

Ints int32s(const mxArray* a, const char* name) {
  const std::size_t n = count(a);
  if (n == 0) return {};
  if (!mxIsInt32(a) || mxIsComplex(a)) refuse("%s must be int32, got %s", name, describe(a).text);
  return {static_cast<int*>(mxGetData(a)), n};
}

double number(const mxArray* a, const char* name) {
  const std::size_t n = a && (mxIsNumeric(a) || mxIsLogical(a)) ? count(a) : 0;
  const bool sparse = n > 0 && mxIsSparse(a);
  if (n == 0 || (sparse && n > 1)) refuse("%s must be a number, got %s", name, describe(a).text);
  return sparse ? sparseElement(a, 0) : mxGetScalar(a);
}

double sparseElement(const mxArray* a, std::size_t k) {
  const auto m = static_cast<std::size_t>(mxGetM(a));
  const mwIndex* starts = mxGetJc(a) + k / m;
  for (mwIndex i = starts[0]; i < starts[1]; ++i) {
    if (static_cast<std::size_t>(mxGetIr(a)[i]) != k % m) continue;
    return mxIsLogical(a) ? static_cast<double>(static_cast<const mxLogical*>(mxGetData(a))[i]) : mxGetPr(a)[i];
  }
  return 0.0;
}

Fields::Fields(const mxArray* a) : element(a && mxIsStruct(a) && count(a) > 0 ? a : nullptr) {}

mxArray* field(const mxArray* a, const char* name) { return Fields(a).get(name); }

mxArray* cell(const mxArray* a, std::size_t i) {
  if (!a || !mxIsCell(a) || i >= count(a)) return nullptr;
  mxArray* element = mxGetCell(a, static_cast<mwIndex>(i));
  return count(element) > 0 ? element : nullptr;
}

mxArray* matrixCell(const mxArray* a, std::size_t i) {
  if (!a || !mxIsCell(a) || i >= count(a)) return nullptr;
  mxArray* element = mxGetCell(a, static_cast<mwIndex>(i));
  return element && (count(element) > 0 || mxIsNumeric(element) || mxIsSparse(element)) ? element : nullptr;
}

}  // namespace quarn::host
