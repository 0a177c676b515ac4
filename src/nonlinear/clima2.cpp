#include <algorithm>

#include "nonlinear/laws.h"
#include "nonlinear/lin_interp.h"
#include "nonlinear/state_laws.h"

namespace quarn {

void checkClima2(const chandleNl_inout& h, const ROr& /*ro*/) {
  requireParameters(h, "Clima2", 7);
  const long long last = lastGroupStart(h, 5);
  if (last < 0) return;
  checkTablePlace(h);
  requireValues("Clima2", "unl", h.unlTotal, last + 5);
  requireValues("Clima2", "vnl", h.vnlTotal, last + 2);
  requireValues("Clima2", "snl", h.snlTotal, 3);
}

void Clima2(chandleNl_inout* h, ROr ro) {
  const double dt = timeIncrement(h, ro);
  if (h->unlLen > 0) {
    const double stiffness = h->opt[3];
    const double exponent = h->opt[4];
    const double mu = h->opt[5];
    const double offset = h->opt[6];
    const TablePlace place = tablePlace(*h);
    double* unl = h->unl;
    for (std::ptrdiff_t i = 0; i < h->unlLen; i += 5) {
      double g[2] = {0.0, 0.0};  // a table with one value column has no growth rate
      vorel_LinInterp(place.table, unl + i + 2, place.record, g, place.nx, std::min(place.ny, 2), 1, 1, nullptr, nullptr, h->tableAscends);
      const double fMax = mu * g[0];

      double f = unl[i + 3];
      double v = h->vnl[i];
      double z = 1.0 - direction(v) * (f / fMax);
      const double f1 = dahlIncrement(f, z, v, dt, g[1], exponent, fMax) - stiffness * unl[0];

      f = unl[i + 4];
      v = h->vnl[i + 1];
      z = 1.0 - direction(v) * ((f / mu) / g[0]);
      const double f2 = dahlIncrement(f, z, v, dt, g[1], exponent, fMax) - stiffness * unl[1];

      const double f3 = g[0] - stiffness * unl[2] - offset;
      // The states keep the forces with the linear term in them; every group uses the force slots of the first one.
      h->snl[0] = f1;
      h->snl[1] = f2;
      h->snl[2] = f3;
      unl[i + 3] = f1;
      unl[i + 4] = f2;
    }
  }
  StoreState(h, ro);
}

}  // namespace quarn
