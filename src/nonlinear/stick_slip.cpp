#include "nonlinear/state_laws.h"
#include "numbers/convert.h"

namespace quarn {

void checkSts(const chandleNl_inout& h, const ROr& /*ro*/) {
  requireParameters(h, "sts", 7);
  // The force of the first pair is formed even where there is no pair to walk over.
  const long long last = h.unlLen > 0 ? lastGroupStart(h, 2) : 0;
  requireValues("sts", "unl", h.unlTotal, last + 2);
  requireValues("sts", "vnl", h.vnlTotal, last + 1);
  requireValues("sts", "snl", h.snlTotal, 1);
}

void STS(chandleNl_inout* h, ROr ro) {
  const double dt = timeIncrement(h, ro);
  const double parallel = h->opt[3];
  const double contact = h->opt[4];
  const double slipForce = h->opt[5];
  const double ground = h->opt[6];
  for (std::ptrdiff_t i = 0; i < h->unlLen; i += 2) {
    const double x = h->unl[i];
    const double y = h->unl[i + 1];
    const double trial = (y - x) * contact + y * ground;
    // Whole units of force decide: a trial of 2.9 does not overcome a slip force of 2.5.
    if (slipForce > absolute(toInt(trial))) break;
    const double slip = trial > 0.0 ? slipForce : -slipForce;
    h->unl[i + 1] = ((x + h->vnl[i] * dt) * contact - slip) / (contact + ground);
  }
  h->snl[0] = (h->unl[0] - h->unl[1]) * contact + parallel * h->unl[0];
  StoreState(h, ro);
}

}  // namespace quarn
