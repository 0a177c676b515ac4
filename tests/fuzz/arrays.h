// Random arrays: mostly what a command expects, changed here and there.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "bytes.h"
#include "standin.h"

namespace fuzz {

using Fields = std::vector<std::pair<const char*, mxArray*>>;

/// Makes the arrays of one input. Everything belongs to the host's workspace.
class Maker {
 public:
  explicit Maker(Bytes& source) : in(source) {}

  /// Full double array of that size with random values; its shape, class or place in memory may have been changed.
  mxArray* doubles(std::size_t m, std::size_t n = 1, std::size_t pages = 1);
  mxArray* complexDoubles(std::size_t m, std::size_t n);
  mxArray* number(double value);
  mxArray* int32s(const std::vector<int>& values);
  mxArray* text(const char* characters);
  /// m x n matrix structure; its parts may disagree.
  mxArray* matrix(std::size_t m, std::size_t n, bool transposed = false);
  mxArray* nativeSparse(std::size_t m, std::size_t n);
  mxArray* cell(std::size_t m, std::size_t n, const std::vector<mxArray*>& elements);
  /// Fields that are null are left out; a field may be lost, or become unset.
  mxArray* structure(const Fields& fields);
  /// Any array at all.
  mxArray* anything(int depth = 0);
  /// The array itself, mostly.
  mxArray* changed(mxArray* a);

  std::size_t size() { return in.below(7); }
  Bytes& in;

 private:
  mxArray* values(const std::vector<mwSize>& dims, mxClassID id, bool isComplex);
  mxArray* keep(mxArray* a);
  std::vector<mxArray*> pool;
};

/// Data of a full double array; null where a is no such thing any more.
double* ordinary(mxArray* a);

}  // namespace fuzz
