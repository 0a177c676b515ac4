// A one-sided stop that is stiff and lossy, after Hunt and Crossley.
#include <cmath>

#include "nonlinear/laws.h"
#include "sparse/line_checks.h"

namespace quarn {

void FuContact(chandleNl_inout* h, ROr ro) {
  const double stiffness = h->opt[1];
  const double exponent = h->opt[2];
  const double damping = h->opt[3];
  const double gap = h->opt[4];
  const double side = h->opt[5] < 0.0 ? -1.0 : 1.0;
  for (int i = 0; i < h->unlLen; ++i) {
    const double depth = side * h->unl[i] - gap;
    double push = 0.0;
    if (!(depth <= 0.0)) {  // NaN stays NaN
      push = stiffness * std::pow(depth, exponent) * (1.0 + damping * (side * h->vnl[i]));
      if (push < 0.0) push = 0.0;
    }
    h->snl[i] = push > 0.0 ? side * push : push;
  }
  storeForces(*h, ro);
}

void checkContact(const chandleNl_inout& h, const ROr& /*ro*/) {
  checkLength(static_cast<std::size_t>(h.optLen), 6, "opt", "code, stiffness, exponent, damping, gap, side");
  requireRates(h, "Contact");
  checkLength(h.snlTotal, h.unlLen, "snl", "as many as a page of unl");
}

}  // namespace quarn
