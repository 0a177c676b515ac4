#include "base/chandle.h"

#include "host/user_code.h"

namespace quarn {

mxArray* chandle::get_val() {
  if (!val) {
    mexPrintf("Empty value\n");
    val = mxCreateDoubleMatrix(0, 0, mxREAL);
  }
  return val;
}

void chandle::doFree() {
  mxArray* old = type != HandleType::nonlinear ? val : nullptr;
  val = nullptr;
  type = HandleType::freed;
  if (!old) return;
  const host::UserCode running;  // the value may hold objects with a clean-up
  mxDestroyArray(old);
}

}  // namespace quarn
