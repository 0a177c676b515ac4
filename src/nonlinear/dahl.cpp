#include "nonlinear/state_laws.h"

namespace quarn {

void checkDahlC(const chandleNl_inout& h, const ROr& /*ro*/) {
  requireParameters(h, "DahlC", 7);
  const long long last = lastGroupStart(h, 2);
  if (last < 0) return;
  requireValues("DahlC", "unl", h.unlTotal, last + 2);
  requireValues("DahlC", "vnl", h.vnlTotal, last + 1);
  requireValues("DahlC", "snl", h.snlTotal, last + 1);
}

void FuDahlC(chandleNl_inout* h, ROr ro) {
  const double dt = timeIncrement(h, ro);
  const double stiffness = h->opt[3];
  const double exponent = h->opt[4];
  const double fMax = h->opt[5] * h->opt[6];
  for (std::ptrdiff_t i = 0; i < h->unlLen; i += 2) {
    const double f = h->unl[i + 1];
    const double v = h->vnl[i];
    const double z = 1.0 - direction(v) * f / fMax;
    const double force = dahlIncrement(f, z, v, dt, stiffness, exponent, fMax);
    h->snl[i] = force;
    h->unl[i + 1] = force;
  }
  StoreState(h, ro);
}

}  // namespace quarn
