// The CBLAS that the module was built with.
#pragma once

namespace quarn {

/// Its name, with the version of its headers where they tell one.
const char* blasName() noexcept;

}  // namespace quarn
