#include "gateway/version_command.h"

#include "host/host_name.h"
#include "sparse/blas_name.h"

#ifndef QUARN_VERSION
#error "QUARN_VERSION is not defined: the build takes it from toolbox/+qn/+impl/release.m"
#endif

namespace quarn {

namespace {

#define QUARN_TEXT_OF(x) #x
#define QUARN_TEXT(x) QUARN_TEXT_OF(x)

#if defined(__clang__)
constexpr char compiler[] = "clang " __clang_version__;
#elif defined(__GNUC__)
constexpr char compiler[] = "g++ " __VERSION__;
#else
constexpr char compiler[] = "unknown";
#endif

}  // namespace

void commandVersion(int /*nlhs*/, mxArray* plhs[], int /*nrhs*/, const mxArray* /*prhs*/[]) {
  const char* names[] = {"version", "compiler", "host", "cblas"};
  const char* values[] = {QUARN_TEXT(QUARN_VERSION), compiler, host::name(), blasName()};
  const mwSize one[] = {1, 1};
  mxArray* s = mxCreateStructArray(2, one, 4, names);
  for (int k = 0; k < 4; ++k) mxSetFieldByNumber(s, 0, k, mxCreateString(values[k]));
  plhs[0] = s;
}

}  // namespace quarn
