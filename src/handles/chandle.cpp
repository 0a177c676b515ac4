#include "handles/chandle.h"

namespace quarn {

mxArray* chandle::get_val() {
  if (!val) {
    mexPrintf("Empty value\n");
    val = mxCreateDoubleMatrix(0, 0, mxREAL);
  }
  return val;
}

void chandle::doFree() {
  if (val && type != 1003) mxDestroyArray(val);
  val = nullptr;
  type = -1;
}

}  // namespace quarn
