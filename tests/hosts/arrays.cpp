// Numeric, character and logical arrays: creation, sizes, data.
#include <cstring>

#include "array.h"

std::size_t mxArray_tag::count() const {
  std::size_t n = 1;
  for (const mwSize d : dims) n *= d;
  return n;
}

namespace standin {

std::size_t elementSize(mxClassID id) {
  switch (id) {
    case mxLOGICAL_CLASS:
    case mxINT8_CLASS:
    case mxUINT8_CLASS:
      return 1;
    case mxCHAR_CLASS:
    case mxINT16_CLASS:
    case mxUINT16_CLASS:
      return 2;
    case mxSINGLE_CLASS:
    case mxINT32_CLASS:
    case mxUINT32_CLASS:
      return 4;
    default:
      return 8;
  }
}

namespace {

mxArray* newValues(mwSize ndim, const mwSize* dims, mxClassID id, bool isComplex) {
  mxArray* a = newArray(id, ndim, dims);
  const Busy busy;
  const std::size_t bytes = a->count() * elementSize(id);
  a->re = newData(bytes);
  a->complex = isComplex;
  if (isComplex) a->im = newData(bytes);
  return a;
}

/// Refuses what is not an array of plain values; on MATLAB the pointer would be to something else.
const mxArray& values(const mxArray* a, const char* function) {
  const mxArray& array = deref(a, function);
  const bool plain = array.kind == Kind::plain && array.id != mxCELL_CLASS && array.id != mxSTRUCT_CLASS;
  if (!plain) misuse("%s of a %s array", function, mxGetClassName(a));
  return array;
}

template <class T>
double firstOf(const mxArray& a) {
  return static_cast<double>(*static_cast<const T*>(a.re.get()));
}

}  // namespace
}  // namespace standin

using namespace standin;

mxArray* mxCreateNumericArray(mwSize ndim, const mwSize* dims, mxClassID id, mxComplexity complexity) {
  return newValues(ndim, dims, id, complexity == mxCOMPLEX);
}

mxArray* mxCreateNumericMatrix(mwSize m, mwSize n, mxClassID id, mxComplexity complexity) {
  const mwSize dims[2] = {m, n};
  return newValues(2, dims, id, complexity == mxCOMPLEX);
}

mxArray* mxCreateDoubleMatrix(mwSize m, mwSize n, mxComplexity complexity) {
  return mxCreateNumericMatrix(m, n, mxDOUBLE_CLASS, complexity);
}

mxArray* mxCreateDoubleScalar(double value) {
  mxArray* a = mxCreateDoubleMatrix(1, 1, mxREAL);
  *mxGetPr(a) = value;
  return a;
}

mxArray* mxCreateCharArray(mwSize ndim, const mwSize* dims) { return newValues(ndim, dims, mxCHAR_CLASS, false); }

mxArray* mxCreateLogicalArray(mwSize ndim, const mwSize* dims) { return newValues(ndim, dims, mxLOGICAL_CLASS, false); }

mxArray* mxCreateString(const char* text) {
  const mwSize length = std::strlen(text);
  const mwSize dims[2] = {length > 0 ? mwSize{1} : mwSize{0}, length};
  mxArray* a = mxCreateCharArray(2, dims);
  auto* characters = static_cast<mxChar*>(a->re.get());
  for (mwSize k = 0; k < length; ++k) characters[k] = static_cast<unsigned char>(text[k]);
  return a;
}

mxClassID mxGetClassID(const mxArray* a) { return deref(a, "mxGetClassID").id; }
bool mxIsCell(const mxArray* a) { return deref(a, "mxIsCell").id == mxCELL_CLASS; }
bool mxIsChar(const mxArray* a) { return deref(a, "mxIsChar").id == mxCHAR_CLASS; }
bool mxIsClass(const mxArray* a, const char* name) {
  deref(a, "mxIsClass");
  return std::strcmp(mxGetClassName(a), name) == 0;
}
bool mxIsComplex(const mxArray* a) { return deref(a, "mxIsComplex").complex; }
bool mxIsDouble(const mxArray* a) { return deref(a, "mxIsDouble").id == mxDOUBLE_CLASS; }
bool mxIsEmpty(const mxArray* a) { return mxGetNumberOfElements(a) == 0; }
bool mxIsInt32(const mxArray* a) { return deref(a, "mxIsInt32").id == mxINT32_CLASS; }
bool mxIsLogical(const mxArray* a) { return deref(a, "mxIsLogical").id == mxLOGICAL_CLASS; }
bool mxIsNumeric(const mxArray* a) {
  const mxClassID id = deref(a, "mxIsNumeric").id;
  return id >= mxDOUBLE_CLASS && id <= mxUINT64_CLASS;
}

const char* mxGetClassName(const mxArray* a) {
  static const char* const names[] = {"unknown", "cell",   "struct",          "logical", "char",   "void",  "double",
                                      "single",  "int8",   "uint8",           "int16",   "uint16", "int32", "uint32",
                                      "int64",   "uint64", "function_handle", "opaque",  "object"};
  const mxArray& array = deref(a, "mxGetClassName");
  return array.className.empty() ? names[array.id] : array.className.c_str();
}

std::size_t mxGetElementSize(const mxArray* a) { return elementSize(deref(a, "mxGetElementSize").id); }
std::size_t mxGetM(const mxArray* a) { return deref(a, "mxGetM").dims[0]; }
std::size_t mxGetN(const mxArray* a) {
  const mxArray& array = deref(a, "mxGetN");
  std::size_t n = 1;
  for (std::size_t k = 1; k < array.dims.size(); ++k) n *= array.dims[k];
  return n;
}
std::size_t mxGetNumberOfElements(const mxArray* a) { return deref(a, "mxGetNumberOfElements").count(); }
mwSize mxGetNumberOfDimensions(const mxArray* a) { return deref(a, "mxGetNumberOfDimensions").dims.size(); }
const mwSize* mxGetDimensions(const mxArray* a) { return deref(a, "mxGetDimensions").dims.data(); }

double* mxGetPr(const mxArray* a) {
  if (values(a, "mxGetPr").id != mxDOUBLE_CLASS) misuse("mxGetPr of a %s array", mxGetClassName(a));
  return static_cast<double*>(a->re.get());
}
double* mxGetPi(const mxArray* a) {
  if (values(a, "mxGetPi").id != mxDOUBLE_CLASS) misuse("mxGetPi of a %s array", mxGetClassName(a));
  return static_cast<double*>(a->im.get());
}
void* mxGetData(const mxArray* a) { return values(a, "mxGetData").re.get(); }
void* mxGetImagData(const mxArray* a) { return values(a, "mxGetImagData").im.get(); }

double mxGetScalar(const mxArray* a) {
  const mxArray& array = values(a, "mxGetScalar");
  if (!array.re) misuse("mxGetScalar of an array without values");
  switch (array.id) {
    case mxLOGICAL_CLASS:
      return firstOf<bool>(array);
    case mxCHAR_CLASS:
      return firstOf<mxChar>(array);
    case mxSINGLE_CLASS:
      return firstOf<float>(array);
    case mxINT8_CLASS:
      return firstOf<std::int8_t>(array);
    case mxUINT8_CLASS:
      return firstOf<std::uint8_t>(array);
    case mxINT16_CLASS:
      return firstOf<std::int16_t>(array);
    case mxUINT16_CLASS:
      return firstOf<std::uint16_t>(array);
    case mxINT32_CLASS:
      return firstOf<std::int32_t>(array);
    case mxUINT32_CLASS:
      return firstOf<std::uint32_t>(array);
    case mxINT64_CLASS:
      return firstOf<std::int64_t>(array);
    case mxUINT64_CLASS:
      return firstOf<std::uint64_t>(array);
    default:
      return firstOf<double>(array);
  }
}

int mxGetString(const mxArray* a, char* text, mwSize length) {
  const mxArray& array = deref(a, "mxGetString");
  if (array.id != mxCHAR_CLASS || length == 0) return 1;
  const auto* characters = static_cast<const mxChar*>(array.re.get());
  const mwSize n = array.count() < length ? array.count() : length - 1;
  for (mwSize k = 0; k < n; ++k) text[k] = static_cast<char>(characters[k]);
  text[n] = '\0';
  return array.count() < length ? 0 : 1;
}

char* mxArrayToString(const mxArray* a) {
  const mxArray& array = deref(a, "mxArrayToString");
  if (array.id != mxCHAR_CLASS) return nullptr;
  auto* text = static_cast<char*>(mxCalloc(array.count() + 1, 1));
  mxGetString(a, text, array.count() + 1);
  return text;
}
