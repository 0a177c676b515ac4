// Type codes of handles.
#pragma once

#include <cstdint>

namespace quarn {

/// As callers give them in "chandleset" and in the field "type" of a list's element.
struct HandleType {
  enum Code : std::int32_t {
    freed = -1,  ///< of no handle: a negative code marks one whose value is gone
    stiffness = 1,
    mass = 2,
    damping = 3,
    nonlinear = 1003,
    newmark = 2000
  };
};

}  // namespace quarn
