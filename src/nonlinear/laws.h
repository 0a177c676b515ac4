// The force laws and how "opt" selects them.
#pragma once

#include <cstdint>

#include "nonlinear/nl_inout.h"

namespace quarn {

struct LawRow {
  const char* keyword;
  std::int64_t code;  ///< the keyword read as a little-endian byte string
  NlForceLaw law;
  NlLawCheck check;
  bool needsPages;  ///< a two-dimensional unl is refused when the law is selected
};

/// Row of the law whose code is opt0, truncated toward zero; null if there is none.
const LawRow* findLaw(double opt0);

// Laws without states.
void FuPower(chandleNl_inout* h, ROr ro);  ///< snl = opt[1] * pow(unl, opt[2])
void FuExpon(chandleNl_inout* h, ROr ro);  ///< snl = opt[1] * pow(opt[2], unl)
void FuTable(chandleNl_inout* h, ROr ro);  ///< snl interpolated in the table at opt[iopt[5]]

/// snl = opt[1] * |vnl|^opt[2] with the sign of vnl, 0 at rest: a dashpot that is linear (opt[2] = 1), quadratic (2: drag, an orifice) or
/// between them.
void FuDamper(chandleNl_inout* h, ROr ro);

/// snl = side * max(0, opt[1] * d^opt[2] * (1 + opt[3] * d')) for a depth d = side*unl - opt[4] above 0, else 0: a stop that is reached at
/// the gap opt[4], on the side of positive values, or where opt[5] is negative of negative ones. It pushes and never pulls. Source: K. H.
/// Hunt and F. R. E. Crossley, Coefficient of restitution interpreted as damping in vibroimpact, J. Applied Mechanics 42 (1975).
void FuContact(chandleNl_inout* h, ROr ro);

/// snl = a force that was measured over a grid of nx = iopt[5] displacements and nv = iopt[6] velocities, bilinear between them; beyond the
/// grid its outer cells go on. opt[3] on: the displacements, the velocities, the forces, nx for each velocity. opt[1] and opt[2] are raised
/// to the greatest distances [m, m/s] from the grid that are met. Source: S. F. Masri and T. K. Caughey, A nonparametric identification
/// technique for nonlinear dynamic problems, J. Applied Mechanics 46 (1979).
void FuSurface(chandleNl_inout* h, ROr ro);

void checkPower(const chandleNl_inout& h, const ROr& ro);
void checkExpon(const chandleNl_inout& h, const ROr& ro);
void checkTable(const chandleNl_inout& h, const ROr& ro);
void checkDamper(const chandleNl_inout& h, const ROr& ro);
void checkContact(const chandleNl_inout& h, const ROr& ro);
void checkSurface(const chandleNl_inout& h, const ROr& ro);

/// Refuses a law that works on the velocities of a page without a place for them, or with one array for both observations.
void requireRates(const chandleNl_inout& h, const char* law);

/// Where iopt[5..8] place a table and its search record in opt; refuses one that does not lie there or does not ascend.
struct TablePlace {
  double* table;  ///< null without knots where "opt" holds no two values there
  double* record;
  int nx;
  int ny;
};
TablePlace tablePlace(const chandleNl_inout& h);
void checkTablePlace(const chandleNl_inout& h);
/// Whether the abscissae of the table ascend, without NaN. The table must have been checked.
bool tableAscends(const chandleNl_inout& h);

}  // namespace quarn
