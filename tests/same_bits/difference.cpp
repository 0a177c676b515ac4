// Two arrays, bit by bit.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "same_bits/records.h"

namespace {

void compareDoubles(Difference& d, const double* a, const double* b, std::size_t n) {
  double largest = 0.0;
  double apart = 0.0;
  for (std::size_t k = 0; k < n; ++k) {
    ++d.numbers;
    if (std::isfinite(b[k])) largest = std::max(largest, std::abs(b[k]));
    if (std::memcmp(a + k, b + k, sizeof *a) == 0) continue;
    ++d.bits;
    if (a[k] == b[k]) continue;  // zeros of both signs
    apart = std::isfinite(a[k]) && std::isfinite(b[k]) ? std::max(apart, std::abs(a[k] - b[k])) : INFINITY;
  }
  if (apart > 0.0) d.worst = std::max(d.worst, largest > 0.0 ? apart / largest : INFINITY);
}

bool sameShape(const mxArray* a, const mxArray* b) {
  const mwSize dims = mxGetNumberOfDimensions(a);
  return mxGetClassID(a) == mxGetClassID(b) && mxIsComplex(a) == mxIsComplex(b) && mxGetNumberOfDimensions(b) == dims &&
         std::equal(mxGetDimensions(a), mxGetDimensions(a) + dims, mxGetDimensions(b));
}

bool sameText(const mxArray* a, const mxArray* b) {
  char* x = mxArrayToString(a);
  char* y = mxArrayToString(b);
  const bool same = std::strcmp(x, y) == 0;
  mxFree(x);
  mxFree(y);
  return same;
}

void compareFields(Difference& d, const mxArray* a, const mxArray* b, std::size_t n) {
  d.shape = mxGetNumberOfFields(a) != mxGetNumberOfFields(b);
  for (int f = 0; !d.shape && f < mxGetNumberOfFields(a); ++f) {
    d.shape = std::strcmp(mxGetFieldNameByNumber(a, f), mxGetFieldNameByNumber(b, f)) != 0;
    for (std::size_t k = 0; k < n; ++k) d.add(difference(mxGetFieldByNumber(a, k, f), mxGetFieldByNumber(b, k, f)));
  }
}

}  // namespace

void Difference::add(const Difference& other) {
  numbers += other.numbers;
  bits += other.bits;
  worst = std::max(worst, other.worst);
  shape = shape || other.shape;
}

Difference difference(const mxArray* a, const mxArray* b) {
  Difference d;
  if (!a || !b) {
    d.shape = a != b;
    return d;
  }
  d.shape = !sameShape(a, b);
  const std::size_t n = mxGetNumberOfElements(a);
  if (d.shape || mxIsClass(a, "chandle")) return d;
  if (mxIsCell(a)) {
    for (std::size_t k = 0; k < n; ++k) d.add(difference(mxGetCell(a, k), mxGetCell(b, k)));
  } else if (mxIsStruct(a)) {
    compareFields(d, a, b, n);
  } else if (mxIsChar(a)) {
    d.shape = !sameText(a, b);
  } else if (mxIsInt32(a)) {
    d.numbers = n;
    const auto* x = static_cast<const std::int32_t*>(mxGetData(a));
    const auto* y = static_cast<const std::int32_t*>(mxGetData(b));
    for (std::size_t k = 0; k < n; ++k) d.bits += x[k] != y[k] ? 1U : 0U;
    d.worst = d.bits > 0 ? INFINITY : 0.0;
  } else {
    compareDoubles(d, mxGetPr(a), mxGetPr(b), n);
    if (mxIsComplex(a)) compareDoubles(d, mxGetPi(a), mxGetPi(b), n);
  }
  return d;
}
