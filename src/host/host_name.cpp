#include "host/host_name.h"

#ifdef QUARN_HOST_OCTAVE
#include <octave/version.h>
#endif

namespace quarn::host {

#ifdef QUARN_HOST_OCTAVE
const char* name() noexcept { return "GNU Octave " OCTAVE_VERSION; }
#else
const char* name() noexcept { return "MATLAB, interface R2017b"; }
#endif

}  // namespace quarn::host
