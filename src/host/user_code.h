// The user's functions that run while a command runs: callbacks, methods of objects, and clean-ups of values that are destroyed. They may
// call quarn, also to free what the command works with, and clear quarn itself.
#pragma once

#include "host/mex_api.h"

namespace quarn::host {

/// Alive around everything that may run the user's functions. Keeps the module loaded: MATLAB leaves a running function in memory by
/// itself, Octave would unload this one at `clear quarn` and load it a second time within the call.
/// On MATLAB, where an error may leave it undestroyed, it does nothing.
class UserCode {
 public:
#ifdef QUARN_HOST_OCTAVE
  UserCode();
  ~UserCode();
#else
  UserCode() {}
  ~UserCode() {}
#endif
  UserCode(const UserCode&) = delete;
  UserCode& operator=(const UserCode&) = delete;
};

/// What to pass to the user's functions in place of a, whose elements or fields a command is going to look at. Octave passes on an array
/// that has been looked into as a new value, built from all its parts at each call; a twin made before the first look shares the data of a
/// and costs nothing. MATLAB passes a itself. Host memory of the call.
const mxArray* forUserCode(const mxArray* a);

/// Whether a command waits for the user's functions: the current call comes from them, and must leave alone what that command may hold.
/// Always false on MATLAB.
bool insideUserCode() noexcept;

}  // namespace quarn::host
