// The array interface that MATLAB documents, as far as quarn and its tests use it: separate complex data (R2017b), sizes and
// indices of 64 bits.
//
// Functions in which a size or an index became 64 bits wide have the suffix _730 in the binary interface. Functions whose
// signature had been wide enough keep their names.
#pragma once

#include <cstddef>
#include <cstdint>

typedef std::size_t mwSize;
typedef std::size_t mwIndex;
typedef std::ptrdiff_t mwSignedIndex;
typedef char16_t mxChar;
typedef bool mxLogical;
typedef struct mxArray_tag mxArray;

typedef enum {
  mxUNKNOWN_CLASS = 0,
  mxCELL_CLASS,
  mxSTRUCT_CLASS,
  mxLOGICAL_CLASS,
  mxCHAR_CLASS,
  mxVOID_CLASS,
  mxDOUBLE_CLASS,
  mxSINGLE_CLASS,
  mxINT8_CLASS,
  mxUINT8_CLASS,
  mxINT16_CLASS,
  mxUINT16_CLASS,
  mxINT32_CLASS,
  mxUINT32_CLASS,
  mxINT64_CLASS,
  mxUINT64_CLASS,
  mxFUNCTION_CLASS,
  mxOPAQUE_CLASS,
  mxOBJECT_CLASS
} mxClassID;

typedef enum { mxREAL = 0, mxCOMPLEX } mxComplexity;

#define mxCreateCellArray mxCreateCellArray_730
#define mxCreateCellMatrix mxCreateCellMatrix_730
#define mxCreateCharArray mxCreateCharArray_730
#define mxCreateDoubleMatrix mxCreateDoubleMatrix_730
#define mxCreateLogicalArray mxCreateLogicalArray_730
#define mxCreateNumericArray mxCreateNumericArray_730
#define mxCreateNumericMatrix mxCreateNumericMatrix_730
#define mxCreateSparse mxCreateSparse_730
#define mxCreateSparseLogicalMatrix mxCreateSparseLogicalMatrix_730
#define mxCreateStructArray mxCreateStructArray_730
#define mxCreateStructMatrix mxCreateStructMatrix_730
#define mxGetCell mxGetCell_730
#define mxGetDimensions mxGetDimensions_730
#define mxGetField mxGetField_730
#define mxGetFieldByNumber mxGetFieldByNumber_730
#define mxGetIr mxGetIr_730
#define mxGetJc mxGetJc_730
#define mxGetNumberOfDimensions mxGetNumberOfDimensions_730
#define mxGetNzmax mxGetNzmax_730
#define mxGetProperty mxGetProperty_730
#define mxGetString mxGetString_730
#define mxSetCell mxSetCell_730
#define mxSetField mxSetField_730
#define mxSetFieldByNumber mxSetFieldByNumber_730

#pragma GCC visibility push(default)
extern "C" {

// Memory of the current call.
void* mxCalloc(std::size_t n, std::size_t size);
void* mxMalloc(std::size_t n);
void mxFree(void* ptr);

// Creation and life.
mxArray* mxCreateCellArray(mwSize ndim, const mwSize* dims);
mxArray* mxCreateCellMatrix(mwSize m, mwSize n);
mxArray* mxCreateCharArray(mwSize ndim, const mwSize* dims);
mxArray* mxCreateDoubleMatrix(mwSize m, mwSize n, mxComplexity complexity);
mxArray* mxCreateDoubleScalar(double value);
mxArray* mxCreateLogicalArray(mwSize ndim, const mwSize* dims);
mxArray* mxCreateNumericArray(mwSize ndim, const mwSize* dims, mxClassID id, mxComplexity complexity);
mxArray* mxCreateNumericMatrix(mwSize m, mwSize n, mxClassID id, mxComplexity complexity);
mxArray* mxCreateSparse(mwSize m, mwSize n, mwSize nzmax, mxComplexity complexity);
mxArray* mxCreateSparseLogicalMatrix(mwSize m, mwSize n, mwSize nzmax);
mxArray* mxCreateString(const char* text);
mxArray* mxCreateStructArray(mwSize ndim, const mwSize* dims, int fields, const char** names);
mxArray* mxCreateStructMatrix(mwSize m, mwSize n, int fields, const char** names);
mxArray* mxDuplicateArray(const mxArray* a);
void mxDestroyArray(mxArray* a);

// What an array is.
mxClassID mxGetClassID(const mxArray* a);
const char* mxGetClassName(const mxArray* a);
bool mxIsCell(const mxArray* a);
bool mxIsChar(const mxArray* a);
bool mxIsClass(const mxArray* a, const char* name);
bool mxIsComplex(const mxArray* a);
bool mxIsDouble(const mxArray* a);
bool mxIsEmpty(const mxArray* a);
bool mxIsInt32(const mxArray* a);
bool mxIsLogical(const mxArray* a);
bool mxIsNumeric(const mxArray* a);
bool mxIsSparse(const mxArray* a);
bool mxIsStruct(const mxArray* a);

// Sizes.
std::size_t mxGetElementSize(const mxArray* a);
std::size_t mxGetM(const mxArray* a);
std::size_t mxGetN(const mxArray* a);
std::size_t mxGetNumberOfElements(const mxArray* a);
mwSize mxGetNumberOfDimensions(const mxArray* a);
const mwSize* mxGetDimensions(const mxArray* a);

// Data.
double* mxGetPr(const mxArray* a);
double* mxGetPi(const mxArray* a);
void* mxGetData(const mxArray* a);
void* mxGetImagData(const mxArray* a);
double mxGetScalar(const mxArray* a);
mwIndex* mxGetIr(const mxArray* a);
mwIndex* mxGetJc(const mxArray* a);
mwSize mxGetNzmax(const mxArray* a);
int mxGetString(const mxArray* a, char* text, mwSize length);
char* mxArrayToString(const mxArray* a);

// Cells, structures, objects.
mxArray* mxGetCell(const mxArray* a, mwIndex i);
void mxSetCell(mxArray* a, mwIndex i, mxArray* value);
int mxGetNumberOfFields(const mxArray* a);
const char* mxGetFieldNameByNumber(const mxArray* a, int field);
int mxGetFieldNumber(const mxArray* a, const char* name);
mxArray* mxGetField(const mxArray* a, mwIndex i, const char* name);
mxArray* mxGetFieldByNumber(const mxArray* a, mwIndex i, int field);
void mxSetField(mxArray* a, mwIndex i, const char* name, mxArray* value);
void mxSetFieldByNumber(mxArray* a, mwIndex i, int field, mxArray* value);
mxArray* mxGetProperty(const mxArray* a, mwIndex i, const char* name);
}
#pragma GCC visibility pop
