// Libraries with the user's laws: loaded once, and kept until the module is unloaded.
#pragma once

#include "nonlinear/quarn_law.h"

namespace quarn {

/// The law in the shared library at path, which begins with a slash. The first call loads it; later ones only see that the file is still
/// the one that was loaded, or gone. Refuses what is no whole shared library, what cannot be loaded, a library without a law of this
/// version, and one whose content was replaced after it was loaded.
const quarn_law* userLibrary(const char* path);

/// Unloads all of them; when the module is unloaded. No handle is used any more then.
void closeUserLibraries() noexcept;

}  // namespace quarn
