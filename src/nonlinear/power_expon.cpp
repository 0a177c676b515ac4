// Laws without states: a power and an exponential of the observed value.
#include <cmath>

#include "nonlinear/laws.h"
#include "sparse/line_checks.h"

namespace quarn {

void FuPower(chandleNl_inout* h, ROr ro) {
  const double coefficient = h->opt[1];
  const double exponent = h->opt[2];
  for (int i = 0; i < h->unlLen; ++i) h->snl[i] = coefficient * std::pow(h->unl[i], exponent);
  storeForces(*h, ro);
}

void FuExpon(chandleNl_inout* h, ROr ro) {
  if (h->unlLen <= 0) return;  // its parameters may be missing as well
  const double coefficient = h->opt[1];
  const double base = h->opt[2];
  for (int i = 0; i < h->unlLen; ++i) h->snl[i] = coefficient * std::pow(base, h->unl[i]);
  storeForces(*h, ro);
}

void checkPower(const chandleNl_inout& h, const ROr& /*ro*/) { checkLength(h.snlTotal, h.unlLen, "snl", "as many as a page of unl"); }

void checkExpon(const chandleNl_inout& h, const ROr& ro) {
  if (h.unlLen <= 0) return;
  checkLength(static_cast<std::size_t>(h.optLen), 3, "opt", "code, coefficient, base");
  checkPower(h, ro);
}

}  // namespace quarn
