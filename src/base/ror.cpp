#include "base/ror.h"

#include "base/fixed_errors.h"
#include "host/arrays.h"
#include "host/errors.h"
#include "numbers/ranges.h"

namespace quarn {

namespace {

void readRayleigh(const mxArray* source, ROr& c) {
  const mxArray* pair = source;
  if (mxIsStruct(source)) pair = host::field(source, "Rayleigh");
  if (!pair) return;
  if (mxIsSparse(pair) && mxIsDouble(pair)) {
    if (host::count(pair) > 0) c.alpha = host::sparseElement(pair, 0);
    if (host::count(pair) > 1) c.beta = host::sparseElement(pair, 1);
    return;
  }
  const host::Doubles values = host::doubles(pair, "the Rayleigh pair");
  if (values.count > 0) c.alpha = values.data[0];
  if (values.count > 1) c.beta = values.data[1];
}

}  // namespace

const char* writtenIn(const StepTimes& times, const double* x, std::size_t n) {
  for (int k = 0; k < times.writtenCount; ++k) {
    const WrittenArray& a = times.written[k];
    if (overlap(a.data, a.count, x, n)) return a.name;
  }
  return nullptr;
}

ROr getROr(int nrhs, const mxArray** prhs) {
  if (nrhs < 6) host::refuse("expected at least 6 inputs (command, r or handles, model, u, v, a), got %d", nrhs);
  if (!host::isClass(prhs[1], "chandle") && mxIsComplex(prhs[1])) host::fail(fixed::complexResidual);
  for (int k = 3; k <= 5; ++k) {
    if (mxIsComplex(prhs[k])) host::fail(fixed::complexState);
  }
  ROr c;
  c.N = host::rows(prhs[3]);
  const host::Doubles u = host::doubles(prhs[3], "u");
  const host::Doubles v = host::doubles(prhs[4], "v");
  const host::Doubles a = host::doubles(prhs[5], "a");
  c.u = u.data;
  c.uLen = u.count;
  c.v = v.data;
  c.vLen = v.count;
  c.a = a.data;
  c.aLen = a.count;
  if (nrhs > 6) readRayleigh(prhs[6], c);
  const host::Doubles store = host::doubles(host::field(prhs[2], "FNL"), "FNL");
  c.FNL = store.data;
  c.fnlLen = store.count;
  return c;
}

}  // namespace quarn
