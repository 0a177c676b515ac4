#include "host/user_code.h"

namespace quarn::host {

#ifdef QUARN_HOST_OCTAVE

namespace {
int depth = 0;
}

UserCode::UserCode() {
  mexLock();
  ++depth;
}

UserCode::~UserCode() {
  --depth;
  try {
    mexUnlock();
  } catch (...) {  // Octave no longer finds the function under its name: it stays locked, which harms nothing
  }
}

bool insideUserCode() noexcept { return depth > 0; }

const mxArray* forUserCode(const mxArray* a) { return mxDuplicateArray(a); }

#else

const mxArray* forUserCode(const mxArray* a) { return a; }

bool insideUserCode() noexcept { return false; }

#endif

}  // namespace quarn::host
