// Creation of handles by type code: the one place that knows every handle class.
#pragma once

#include "base/chandle.h"

namespace quarn {

/// A handle of the type that base/handle_type.h lists. Sets *ok to 1.
/// The object is host memory of the current call (mexMakeMemoryPersistent keeps it).
/// Raises KORV:quarn:NonHandle "Not a valid chandle type" for any other code.
chandle* chandleInitByType(int code, int* ok);

}  // namespace quarn
