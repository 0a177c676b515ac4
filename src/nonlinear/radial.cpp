#include <cmath>

#include "host/errors.h"
#include "nonlinear/laws.h"
#include "nonlinear/shaft_laws.h"
#include "nonlinear/state_laws.h"
#include "numbers/plane_length.h"

namespace quarn {

void requirePairs(const chandleNl_inout& h, const char* law, int parameters) {
  if (h.optLen < parameters) host::refuse("\"opt\" of law \"%s\" must hold %d values or more, got %d", law, parameters, h.optLen);
  if (h.unlLen % 2 != 0) host::refuse("\"unl\" of law \"%s\" must hold pairs of displacements, got %d values", law, h.unlLen);
  requireRates(h, law);
  requireValues(law, "snl", h.snlTotal, h.unlLen);
}

void checkRadial(const chandleNl_inout& h, const ROr& /*ro*/) {
  requirePairs(h, "Radial", 11);
  if (!(h.opt[1] >= 0.0)) host::refuse("the clearance of law \"Radial\", opt(2), must be 0 or more, got %g", h.opt[1]);
}

void FuRadial(chandleNl_inout* h, ROr ro) {
  const double gap = h->opt[1];
  const double stiffness = h->opt[2];
  const double exponent = h->opt[3];
  const double damping = h->opt[4];
  const double friction = h->opt[5];
  const double smooth = h->opt[6];
  const double surface = h->opt[7] * h->opt[8];
  for (int i = 0; i < h->unlLen; i += 2) {
    const double x = h->unl[i] - h->opt[9];
    const double y = h->unl[i + 1] - h->opt[10];
    const double r = planeLength(x, y);
    if (r <= gap) {
      h->snl[i] = 0.0;
      h->snl[i + 1] = 0.0;
      continue;
    }
    const double nx = x / r;
    const double ny = y / r;
    const double deepening = nx * h->vnl[i] + ny * h->vnl[i + 1];
    const double sliding = nx * h->vnl[i + 1] - ny * h->vnl[i] + surface;
    double normal = stiffness * std::pow(r - gap, exponent) * (1.0 + damping * deepening);
    if (normal < 0.0) normal = 0.0;
    const double speed = planeLength(sliding, smooth);
    const double tangent = speed == 0.0 ? 0.0 : friction * normal * (sliding / speed);
    h->snl[i] = normal * nx - tangent * ny;
    h->snl[i + 1] = normal * ny + tangent * nx;
  }
  storeForces(*h, ro);
}

}  // namespace quarn
