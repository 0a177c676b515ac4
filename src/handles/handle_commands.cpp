#include "handles/handle_commands.h"

#include <algorithm>

#include "base/fixed_errors.h"
#include "handles/handle_types.h"
#include "handles/hindex.h"
#include "host/arrays.h"
#include "host/errors.h"
#include "numbers/convert.h"

namespace quarn {

namespace {

constexpr int mostInputs = 9;  // of "chandleget", the command word included

int indexArgument(const mxArray* a) { return toInt(host::number(a, "the handle's index")); }

chandle* existing(int index) {
  chandle* h = cIndex.getStack(index);
  if (!h) host::fail(fixed::noSuchHandle);
  return h;
}

/// A copy of the handle's value that a function of the host may keep. Where arguments are lent, what a command returns is the host's own.
mxArray* copyToGive(chandle& h, const mxArray* index) {
  if (!host::lendsArguments()) return host::duplicate(h.get_val());
  mxArray* in[2] = {mxCreateString("chandleget"), const_cast<mxArray*>(index)};
  mxArray* out = nullptr;
  host::callHost(1, &out, 2, in, "quarn");
  return out;
}

mxArray* listKeys() {
  const auto& all = cIndex.all();
  mxArray* keys = mxCreateDoubleMatrix(static_cast<mwSize>(all.size()), 1, mxREAL);
  double* key = mxGetPr(keys);
  for (const auto& entry : all) *key++ = entry.first;
  return keys;
}

}  // namespace

void commandChandleSet(int /*nlhs*/, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 3) host::refuse("expected 3 inputs (command, type, value), got %d", nrhs);
  const int code = toInt(host::number(prhs[1], "the handle's type"));
  int ok = 0;
  chandle* h = chandleInitByType(code, &ok);
  const int index = cIndex.get_free_index();
  if (host::isClass(prhs[2], "v_handle")) host::fail(fixed::valueIsObject);
  mxArray* value = host::duplicate(prhs[2]);
  h->set_val(code, value);
  plhs[0] = mxCreateDoubleScalar(index);
  cIndex.setStack(index, h);
  // Nothing can fail any more: what outlives the call has an index, and the caller has it.
  mexMakeArrayPersistent(value);
  mexMakeMemoryPersistent(h);
}

void commandChandleGet(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 2) {
    plhs[0] = listKeys();
    return;
  }
  if (nrhs == 2) {
    plhs[0] = host::duplicate(existing(indexArgument(prhs[1]))->get_val());
    return;
  }
  chandle* h = existing(indexArgument(prhs[2]));
  if (nrhs > mostInputs) host::fail(fixed::tooManyArguments);
  mxArray* in[mostInputs];
  std::transform(prhs + 1, prhs + nrhs, in, [](const mxArray* a) { return const_cast<mxArray*>(a); });
  in[1] = copyToGive(*h, prhs[2]);
  host::callHost(nlhs, plhs, nrhs - 1, in, "feval");
}

void commandChandleClear(int /*nlhs*/, mxArray* /*plhs*/[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 2 || host::count(prhs[1]) == 0) {
    cIndex.free_index(-1);
  } else {
    cIndex.free_index(indexArgument(prhs[1]));
  }
}

}  // namespace quarn
