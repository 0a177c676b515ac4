// The host that the module was built for.
#pragma once

namespace quarn::host {

/// Its name, with the version of its headers where they tell one.
const char* name() noexcept;

}  // namespace quarn::host
