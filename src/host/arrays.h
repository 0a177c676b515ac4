// Looking into host arrays. Every function takes null and arrays of any class: on Octave a data or field accessor called on
// the wrong class ends the process, so the class is tested first, here and nowhere else.
#pragma once

#include <cstddef>

#include "host/mex_api.h"

namespace quarn::host {

/// Borrowed data of an array. No elements means no data: the pointer is null then, whatever the host returns.
template <class T>
struct Span {
  T* data = nullptr;
  std::size_t count = 0;
  explicit operator bool() const { return data != nullptr; }
};
using Doubles = Span<double>;
using Ints = Span<int>;

/// Elements of a; 0 for null.
std::size_t count(const mxArray* a);
/// First dimension, and product of the others; 0 for null.
std::size_t rowCount(const mxArray* a);
std::size_t columnCount(const mxArray* a);
/// The same as 32-bit integers, INT_MAX where they do not fit.
int rows(const mxArray* a);
int cols(const mxArray* a);

/// Name of the class of an array.
const char* className(const mxArray* a);
/// The same by the class's number, for Octave 11, which tells no name of some structs, cells and scalars.
const char* nameOfClass(mxClassID id);
/// What an array is, for error texts: "double 3x1", "sparse double 4x4", "nothing".
struct Description {
  char text[96];
};
Description describe(const mxArray* a);

/// Neither a built-in array nor a function handle: an object of a class.
bool isObject(const mxArray* a);
/// Of that class; for objects and function handles.
bool isClass(const mxArray* a, const char* className);
/// A full real double array (no elements is fine).
bool isRealDouble(const mxArray* a);
/// Whether doubles() takes a: absent, without elements, or a full double array, real or complex.
bool holdsDoubles(const mxArray* a);
/// Whether realDoubles() takes a: absent, without elements, or a full real double array.
bool holdsReals(const mxArray* a);

// An array without elements, of whatever class, is an absent one: the class is looked at only when there is something in it.

/// Data of a full double array that is read, of a complex one its real part; refuses any other class under the name that the user knows it
/// by. Absent is empty. On Octave the real part is a copy: what is written into it is not the caller's.
Doubles doubles(const mxArray* a, const char* name);
/// Data of a full real double array, above all of one that is written into; refuses any other class, complex arrays included. Absent is
/// empty.
Doubles realDoubles(const mxArray* a, const char* name);
/// Data of an int32 array; refuses any other class. Absent is empty.
Ints int32s(const mxArray* a, const char* name);
/// First value of a full numeric or logical array, or the value of a sparse scalar; refuses anything else, and an array without elements.
double number(const mxArray* a, const char* name);
/// Element k of a sparse array of the host's own kind, counted column by column; of a complex one the real part.
double sparseElement(const mxArray* a, std::size_t k);

/// The fields of element 0 of a struct, which is looked at once for all of them. What is not a struct, or has no element, has no field.
class Fields {
 public:
  explicit Fields(const mxArray* a);
  /// Null where there is no such field.
  mxArray* get(const char* name) const { return element ? mxGetField(element, 0, name) : nullptr; }

 private:
  const mxArray* element;
};

/// Field of element 0 of a struct; null where there is none, or where a is not a struct or has no element.
mxArray* field(const mxArray* a, const char* name);
/// Element i of a cell; null where it is unset or has no elements, or where there is no such element.
mxArray* cell(const mxArray* a, std::size_t i);
/// The same for an element that is to be a matrix: a numeric array is returned also without elements, since its form may be an error.
mxArray* matrixCell(const mxArray* a, std::size_t i);
/// Field or property of an object; null where it cannot be reached. Its data is the object's own on Octave.
mxArray* objectField(const mxArray* object, const char* name);

/// Alive around a call of the module: what objectField has got from properties meanwhile is freed with it. Octave hands out an array of its
/// own for each look and never frees it; MATLAB frees what a call was given.
class PropertiesOfCall {
 public:
#ifdef QUARN_HOST_OCTAVE
  PropertiesOfCall();
  ~PropertiesOfCall();
  PropertiesOfCall(const PropertiesOfCall&) = delete;
  PropertiesOfCall& operator=(const PropertiesOfCall&) = delete;

 private:
  std::size_t before;
#else
  PropertiesOfCall() {}
#endif
};

/// n zeros, one at least, in memory of the current call, which the host reclaims after an error as well.
inline double* zeros(std::size_t n) { return static_cast<double*>(mxCalloc(n > 0 ? n : 1, sizeof(double))); }

/// A copy that shares no memory with a: deep on every host. Objects other than structs and cells are copied by the host.
mxArray* duplicate(const mxArray* a);

/// Whether a function of the host that is called with an array made by the module loses its values when the command ends, though it may
/// have kept or returned them: Octave 11 lends it the memory.
bool lendsArguments();

/// n values in a column of their own (0 x 0 for none) that a function of the host may keep or return, whatever the host does with
/// arguments.
mxArray* columnToGive(const double* x, int n);

}  // namespace quarn::host
