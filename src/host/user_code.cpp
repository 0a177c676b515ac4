#include "host/user_code.h"

namespace quarn::host {

#ifdef QUARN_HOST_OCTAVE

namespace {
int depth = 0;
}

// One lock for all of them: Octave looks the function up by its name each time.
UserCode::UserCode() {
  if (depth == 0) mexLock();
  ++depth;
}

UserCode::~UserCode() {
  if (--depth > 0) return;
  try {
    mexUnlock();
  } catch (
      ...) {  // the user's function took its folder from the path: Octave no longer finds it, and unloads it when the command has ended
  }
}

bool insideUserCode() noexcept { return depth > 0; }

const mxArray* forUserCode(const mxArray* a) { return mxDuplicateArray(a); }

#else

const mxArray* forUserCode(const mxArray* a) { return a; }

bool insideUserCode() noexcept { return false; }

#endif

}  // namespace quarn::host
