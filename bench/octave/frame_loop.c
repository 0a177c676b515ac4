/* FRAME_LOOP (DEF, FORCES, W2, C, GAIN, R, PUSH, [h beta gamma])                          Newmark's steps of modes under one load
 * FRAME_LOOP (DEF, FORCES, W2, C, GAIN, R, PUSH, [h beta gamma], STOP, X, F, BRACE, [k p])  with a table and a power in two places
 *
 * What a C programmer writes for the demo's frame alone, to the same definitions as the module: displacements after each step go into the
 * columns of DEF, the forces of stop, brace and load into those of FORCES, in place. STOP and BRACE are what the elements observe and where
 * they push, X and F the knots of the stop's table. */
#include <math.h>
#include <mex.h>

static double along(int n, const double* row, const double* u) {
  double sum = 0;
  int i;
  for (i = 0; i < n; ++i) sum += row[i] * u[i];
  return sum;
}

static double in_table(int n, const double* x, const double* f, double at, int* segment) {
  while (*segment < n - 2 && at >= x[*segment + 1]) ++*segment;
  while (*segment > 0 && at < x[*segment]) --*segment;
  return f[*segment] + (f[*segment + 1] - f[*segment]) * (at - x[*segment]) / (x[*segment + 1] - x[*segment]);
}

void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const int n = (int)mxGetM(prhs[0]), steps = (int)mxGetN(prhs[0]), knots = nrhs > 8 ? (int)mxGetNumberOfElements(prhs[9]) : 0;
  double* restrict def = mxGetPr(prhs[0]);
  double* restrict forces = mxGetPr(prhs[1]);
  const double *k = mxGetPr(prhs[2]), *c = mxGetPr(prhs[3]), *gain = mxGetPr(prhs[4]), *r = mxGetPr(prhs[5]), *push = mxGetPr(prhs[6]);
  const double h = mxGetPr(prhs[7])[0], beta = mxGetPr(prhs[7])[1], gamma = mxGetPr(prhs[7])[2];
  const double *stop = NULL, *brace = NULL, *x = NULL, *f = NULL, *power = NULL;
  double* restrict u = mxCalloc(n, sizeof(double));
  double* restrict v = mxCalloc(n, sizeof(double));
  double* restrict a = mxCalloc(n, sizeof(double));
  int i, j, segment = 0;
  (void)nlhs;
  (void)plhs;
  if (knots) {
    stop = mxGetPr(prhs[8]);
    x = mxGetPr(prhs[9]);
    f = mxGetPr(prhs[10]);
    brace = mxGetPr(prhs[11]);
    power = mxGetPr(prhs[12]);
  }
  for (j = 0; j < steps; ++j, def += n, forces += 3) {
    double of_stop = 0, of_brace = 0;
    for (i = 0; i < n; ++i) {
      u[i] += h * v[i] + (0.5 - beta) * h * h * a[i];
      v[i] += (1 - gamma) * h * a[i];
    }
    if (knots) {
      const double moved = along(n, brace, u);
      of_stop = in_table(knots, x, f, along(n, stop, u), &segment);
      of_brace = power[0] * copysign(pow(fabs(moved), power[1]), moved);
      for (i = 0; i < n; ++i) a[i] = stop[i] * of_stop + brace[i] * of_brace;
    } else {
      for (i = 0; i < n; ++i) a[i] = 0;
    }
    for (i = 0; i < n; ++i) {
      const double d = (a[i] + r[i] * push[j] + k[i] * u[i] + c[i] * v[i]) * gain[i];
      u[i] -= d;
      v[i] -= gamma / (beta * h) * d;
      a[i] = -d / (beta * h * h);
      def[i] = u[i];
    }
    forces[0] = of_stop;
    forces[1] = of_brace;
    forces[2] = push[j];
  }
}
