#include "handles/handle_types.h"

#include <new>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "integration/diag_newmark.h"
#include "integration/sparse_handles.h"
#include "nonlinear/nl_inout.h"

namespace quarn {

namespace {

template <class Handle>
chandle* make() {
  static_assert(alignof(Handle) <= alignof(std::max_align_t));
  return new (mxCalloc(1, sizeof(Handle))) Handle;
}

}  // namespace

chandle* chandleInitByType(int code, int* ok) {
  chandle* h = nullptr;
  switch (code) {
    case HandleType::stiffness:
      h = make<chandleSparseStiffness>();
      break;
    case HandleType::mass:
      h = make<chandleSparseMass>();
      break;
    case HandleType::damping:
      h = make<chandleSparseDamping>();
      break;
    case HandleType::nonlinear:
      h = make<chandleNl_inout>();
      break;
    case HandleType::newmark:
      h = make<chandleDiagNewmark>();
      break;
    default:
      host::fail(fixed::unknownHandleType);
  }
  *ok = 1;
  return h;
}

}  // namespace quarn
