#include "integration/newmark_kernels.h"

#include <cstddef>

#include "numbers/processor.h"

namespace quarn {

QUARN_PROCESSOR_VERSIONS
void newmarkPredict(double* __restrict u, double* __restrict v, double* __restrict a, int n, const NewmarkCoefficients& k) {
  const double dt = k.dt;
  const double uFromA = k.uFromA;
  const double vFromA = k.vFromA;
  for (int i = 0; i < n; ++i) {
    u[i] = (uFromA * a[i] + dt * v[i]) + u[i];
    v[i] = vFromA * a[i] + v[i];
    a[i] = 0.0;
  }
}

QUARN_PROCESSOR_VERSIONS
void newmarkLoad(double* __restrict f, const double* __restrict r, int ld, const double* __restrict load, int n, int nb) {
  for (int i = 0; i < n; ++i) f[i] = 0.0;
  for (int k = 0; k < nb; ++k) {
    const double* column = r + static_cast<std::ptrdiff_t>(k) * ld;
    const double p = load[k];
    for (int i = 0; i < n; ++i) f[i] += column[i] * p;
  }
}

QUARN_PROCESSOR_VERSIONS
void newmarkCorrect(double* __restrict u, double* __restrict v, double* __restrict a, const double* __restrict f,
                    const double* __restrict gain, int n, const NewmarkCoefficients& k) {
  const double vFromD = k.vFromD;
  const double aFromD = k.aFromD;
  for (int i = 0; i < n; ++i) {
    const double d = f[i] * gain[i];
    u[i] -= d;
    v[i] -= vFromD * d;
    a[i] -= d * aFromD;
  }
}

}  // namespace quarn
