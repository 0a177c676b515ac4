#include "quarn_law.h"

static void cubic(const quarn_step* now, double* force, double* state) {
  const double x = now->x[0];
  (void)state;
  force[0] = now->p[0] * x * x * x;
}
QUARN_LAW(cubic, 1, 1, 0)
