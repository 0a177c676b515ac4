#include "nonlinear/state_laws.h"
#include "uncalled/uncalled.h"

namespace quarn {

void checkFric(const chandleNl_inout& h, const ROr& /*ro*/) {
  requireParameters(h, "FuFric", 3);
  const long long last = lastGroupStart(h, 2);
  if (last < 0) return;
  requireValues("FuFric", "unl", h.unlTotal, last + 2);
  requireValues("FuFric", "snl", h.snlTotal, last + 1);
}

void FuFric(chandleNl_inout* h, ROr ro) {
  timeIncrement(h, ro);
  for (std::ptrdiff_t i = 0; i < h->unlLen; i += 2) h->snl[i] = h->unl[i + 1];
  StoreState(h, ro);
}

}  // namespace quarn
