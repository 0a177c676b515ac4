// The elementwise loops of one Newmark step, over modes.
#pragma once

namespace quarn {

/// What the caller sets in the first five places of "data"; beta and gamma are Newmark's parameters.
struct NewmarkCoefficients {
  double dt;      ///< dt
  double uFromA;  ///< (1/2 - beta) dt^2
  double vFromA;  ///< (1 - gamma) dt
  double vFromD;  ///< gamma / (beta dt)
  double aFromD;  ///< 1 / (beta dt^2)
};

/// Predictor: u = (uFromA*a + dt*v) + u, v = vFromA*a + v, a = 0. All three in-out, n values.
void newmarkPredict(double* u, double* v, double* a, int n, const NewmarkCoefficients& k);

/// Modal load: f = sum over the nb columns of r of r(:, column) * load(column), in column order. Columns of r are ld values apart.
void newmarkLoad(double* f, const double* r, int ld, const double* load, int n, int nb);

/// Correction: d = f*gain, u -= d, v -= vFromD*d, a -= d*aFromD.
void newmarkCorrect(double* u, double* v, double* a, const double* f, const double* gain, int n, const NewmarkCoefficients& k);

}  // namespace quarn
