/* Force of a self-centring brace: a spring up to the yield force, a softer one behind it, and the way back on a line that lies lower by a
 * share of the yield force, so that nothing remains at rest. C. Christopoulos, A. Filiatrault and B. Folz, Earthquake Engineering and
 * Structural Dynamics 31 (2002).
 *
 * Parameters: stiffness [N/m], yield force [N], share of the stiffness that is left behind it, drop of the force on the way back as a share
 * of the yield force. States: displacement [m] and force [N] of the step before. */
#include "quarn_law.h"

static double least(double a, double b) { return a < b ? a : b; }

static void brace(const quarn_step* now, double* force, double* state) {
  const double x = now->x[0];
  const double stiffness = now->p[0];
  const double yield = now->p[1];
  const double share = now->p[2];
  const double drop = now->p[3];
  const double side = x < 0.0 ? -1.0 : 1.0;
  const double elastic = stiffness * x * side;
  const double upper = least(elastic, (1.0 - share) * yield + share * elastic);
  const double lower = least(elastic, (1.0 - share - drop) * yield + share * elastic);
  double f = side * (state[1] + stiffness * (x - state[0]));
  if (f > upper) f = upper;
  if (f < lower) f = lower;
  force[0] = side * f;
  state[0] = x;
  state[1] = force[0];
}

QUARN_LAW(brace, 1, 4, 2)
