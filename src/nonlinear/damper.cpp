// A dashpot whose force is a power of the velocity.
#include <cmath>

#include "nonlinear/laws.h"
#include "sparse/line_checks.h"

namespace quarn {

void FuDamper(chandleNl_inout* h, ROr ro) {
  const double coefficient = h->opt[1];
  const double exponent = h->opt[2];
  for (int i = 0; i < h->unlLen; ++i) {
    const double v = h->vnl[i];
    if (v == 0.0) {
      h->snl[i] = 0.0;  // also where the power is 1 or infinite
    } else {
      const double force = coefficient * std::pow(std::fabs(v), exponent);
      h->snl[i] = v < 0.0 ? -force : force;
    }
  }
  storeForces(*h, ro);
}

void checkDamper(const chandleNl_inout& h, const ROr& /*ro*/) {
  checkLength(static_cast<std::size_t>(h.optLen), 3, "opt", "code, coefficient, exponent");
  requireRates(h, "Damper");
  checkLength(h.snlTotal, h.unlLen, "snl", "as many as a page of unl");
}

}  // namespace quarn
