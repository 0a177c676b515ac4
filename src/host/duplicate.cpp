// Deep copies and object fields: where the two hosts differ most.
//
// MATLAB's mxDuplicateArray copies deep. Octave's shares the data and counts references, so that a write into the copy shows
// in the original; there the arrays are built anew, level by level.
#include <algorithm>
#include <cstring>
#include <vector>

#include "host/arrays.h"
#include "host/errors.h"
#include "host/user_code.h"

#ifdef QUARN_HOST_OCTAVE
// Modules for Octave 11 and later have it: the build adds it.
extern "C" __attribute__((weak, visibility("default")))
const int __octave_mex_soversion__;  // NOLINT(bugprone-reserved-identifier): its name for it
#endif

namespace quarn::host {

#ifdef QUARN_HOST_OCTAVE

namespace {
std::vector<mxArray*> properties;
}

bool lendsArguments() { return &__octave_mex_soversion__ != nullptr; }

PropertiesOfCall::PropertiesOfCall() : before(properties.size()) {}

PropertiesOfCall::~PropertiesOfCall() {
  if (properties.size() == before) return;
  const UserCode running;
  while (properties.size() > before) {
    mxArray* last = properties.back();
    properties.pop_back();
    mxDestroyArray(last);
  }
}

static mxArray* held(mxArray* property) {
  if (property) properties.push_back(property);
  return property;
}

#else

static mxArray* held(mxArray* property) { return property; }

bool lendsArguments() { return false; }

#endif

// Where arguments are lent, what the host computes is its own: x times 1 has the bits of x. A scalar is copied by every host.
mxArray* columnToGive(const double* x, int n) {
  mxArray* a = mxCreateDoubleMatrix(static_cast<mwSize>(n), n > 0 ? 1 : 0, mxREAL);
  if (n > 0) std::copy_n(x, n, mxGetPr(a));
  if (n < 2 || !lendsArguments()) return a;
  mxArray* factors[2] = {a, mxCreateDoubleScalar(1.0)};
  mxArray* own = nullptr;
  callHost(1, &own, 2, factors, "times");
  mxDestroyArray(factors[0]);
  mxDestroyArray(factors[1]);
  return own;
}

mxArray* objectField(const mxArray* object, const char* name) {
  if (count(object) == 0) return nullptr;
  {
    const UserCode running;
    if (mxArray* property = held(mxGetProperty(object, 0, name))) return property;
  }
#ifdef QUARN_HOST_OCTAVE
  // An object of an old-style class: its fields are reached through struct(), the host's own. A method of that name could change arrays
  // that the command has checked.
  mxArray* in[2] = {mxCreateString("struct"), const_cast<mxArray*>(object)};
  mxArray* out = nullptr;
  callHost(1, &out, 2, in, "builtin");
  mxDestroyArray(in[0]);
  return field(out, name);
#else
  return mxGetField(object, 0, name);
#endif
}

#ifndef QUARN_HOST_OCTAVE

mxArray* duplicate(const mxArray* a) { return a ? mxDuplicateArray(a) : mxCreateDoubleMatrix(0, 0, mxREAL); }

#else

namespace {

void copyBytes(void* to, const void* from, std::size_t bytes) {
  if (to && from && bytes > 0) std::memcpy(to, from, bytes);
}

// Octave leaks the extents of a struct or cell that are asked for before the first look into it: the look comes first.

/// Values are copied level by level on the host's stack, which Octave's own clean-up of them uses as well.
constexpr int deepest = 2000;

mxArray* duplicateLevel(const mxArray* a, int level);

mxArray* duplicateStruct(const mxArray* a, int level) {
  const int fields = mxGetNumberOfFields(a);
  const std::size_t n = count(a);
  if (n > 0 && fields > 0) mxGetFieldByNumber(a, 0, 0);
  auto names = static_cast<const char**>(mxCalloc(static_cast<std::size_t>(fields) + 1, sizeof(char*)));
  for (int f = 0; f < fields; ++f) names[f] = mxGetFieldNameByNumber(a, f);
  mxArray* copy = mxCreateStructArray(mxGetNumberOfDimensions(a), mxGetDimensions(a), fields, names);
  mxFree(static_cast<void*>(names));
  for (std::size_t i = 0; i < n; ++i) {
    for (int f = 0; f < fields; ++f) {
      const auto index = static_cast<mwIndex>(i);
      mxSetFieldByNumber(copy, index, f, duplicateLevel(mxGetFieldByNumber(a, index, f), level + 1));
    }
  }
  return copy;
}

mxArray* duplicateCell(const mxArray* a, int level) {
  const std::size_t n = count(a);
  if (n > 0) mxGetCell(a, 0);
  mxArray* copy = mxCreateCellArray(mxGetNumberOfDimensions(a), mxGetDimensions(a));
  for (std::size_t i = 0; i < n; ++i) {
    const auto index = static_cast<mwIndex>(i);
    mxSetCell(copy, index, duplicateLevel(mxGetCell(a, index), level + 1));
  }
  return copy;
}

mxArray* duplicateSparse(const mxArray* a) {
  const auto columns = static_cast<std::size_t>(mxGetN(a));
  const auto entries = static_cast<std::size_t>(mxGetJc(a)[columns]);
  const bool logical = mxIsLogical(a);
  mxArray* copy = logical ? mxCreateSparseLogicalMatrix(mxGetM(a), mxGetN(a), static_cast<mwSize>(entries))
                          : mxCreateSparse(mxGetM(a), mxGetN(a), static_cast<mwSize>(entries), mxIsComplex(a) ? mxCOMPLEX : mxREAL);
  copyBytes(mxGetJc(copy), mxGetJc(a), (columns + 1) * sizeof(mwIndex));
  copyBytes(mxGetIr(copy), mxGetIr(a), entries * sizeof(mwIndex));
  copyBytes(mxGetData(copy), mxGetData(a), entries * (logical ? sizeof(mxLogical) : sizeof(double)));
  if (!logical && mxIsComplex(a)) copyBytes(mxGetImagData(copy), mxGetImagData(a), entries * sizeof(double));
  return copy;
}

mxArray* duplicateValues(const mxArray* a) {
  const auto dims = mxGetNumberOfDimensions(a);
  const mwSize* extents = mxGetDimensions(a);
  const std::size_t bytes = count(a) * static_cast<std::size_t>(mxGetElementSize(a));
  mxArray* copy = mxIsChar(a)      ? mxCreateCharArray(dims, extents)
                  : mxIsLogical(a) ? mxCreateLogicalArray(dims, extents)
                                   : mxCreateNumericArray(dims, extents, mxGetClassID(a), mxIsComplex(a) ? mxCOMPLEX : mxREAL);
  copyBytes(mxGetData(copy), mxGetData(a), bytes);
  if (mxIsNumeric(a) && mxIsComplex(a)) copyBytes(mxGetImagData(copy), mxGetImagData(a), bytes);
  return copy;
}

mxArray* duplicateByHost(const mxArray* a) {
  if (mxIsFunctionHandle(a)) return mxDuplicateArray(a);
  mxArray* in = const_cast<mxArray*>(a);
  mxArray* out = nullptr;
  callHost(1, &out, 1, &in, "deal");  // mxDuplicateArray raises an error for an object
  if (!out) refuse("a value of class %.60s cannot be copied", className(a));
  return out;
}

mxArray* duplicateLevel(const mxArray* a, int level) {
  if (!a) return mxCreateDoubleMatrix(0, 0, mxREAL);
  if (level > deepest) refuse("a value may be nested %d levels deep, this one is deeper", deepest);
  if (mxIsStruct(a)) return duplicateStruct(a, level);
  if (mxIsCell(a)) return duplicateCell(a, level);
  if (mxIsSparse(a)) return duplicateSparse(a);
  if (mxIsNumeric(a) || mxIsChar(a) || mxIsLogical(a)) return duplicateValues(a);
  return duplicateByHost(a);
}

}  // namespace

mxArray* duplicate(const mxArray* a) { return duplicateLevel(a, 0); }

#endif

}  // namespace quarn::host
