/* A law of the user's for the tests: a spring and a damper, whatever the number of further parameters. */
#include "quarn_law.h"

static void spring(const quarn_step* now, double* force, double* state) {
  (void)state;
  force[0] = now->p[0] * now->x[0] + now->p[1] * now->v[0];
}
QUARN_LAW(spring, 1, QUARN_ANY, 0)
