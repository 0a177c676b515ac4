#include "handles/handle_types.h"

#include <new>

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
    case 1:
      h = make<chandleSparseStiffness>();
      break;
    case 2:
      h = make<chandleSparseMass>();
      break;
    case 3:
      h = make<chandleSparseDamping>();
      break;
    case 1003:
      h = make<chandleNl_inout>();
      break;
    case 2000:
      h = make<chandleDiagNewmark>();
      break;
    default:
      host::fail("KORV:quarn:NonHandle", "Not a valid chandle type");
  }
  *ok = 1;
  return h;
}

}  // namespace quarn
