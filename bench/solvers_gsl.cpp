#include "equations.h"

#ifdef QUARN_BENCH_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_odeiv2.h>

#include <stdexcept>
#endif

namespace quarn::bench {

#ifdef QUARN_BENCH_GSL
namespace {

int rateOf(double t, const double* y, double* dy, void* equation) {
  static_cast<const Equation*>(equation)->rate(t, y, dy);
  return GSL_SUCCESS;
}

std::vector<double> solve(const gsl_odeiv2_step_type* type, const Equation& e, double tolerance) {
  std::vector<double> y(e.size());
  gsl_odeiv2_system system{rateOf, nullptr, y.size(), const_cast<Equation*>(&e)};
  gsl_odeiv2_driver* driver = gsl_odeiv2_driver_alloc_y_new(&system, type, 1e-4, 0.01 * tolerance, tolerance);
  double t = 0.0;
  const int status = gsl_odeiv2_driver_apply(driver, &t, e.end, y.data());
  gsl_odeiv2_driver_free(driver);
  if (status != GSL_SUCCESS) throw std::runtime_error("GSL did not reach the end");
  return y;
}

}  // namespace

void addGsl(std::vector<Solver>& solvers) {
  solvers.push_back({"GSL rkf45", [](const Equation& e, double tolerance) { return solve(gsl_odeiv2_step_rkf45, e, tolerance); }});
  solvers.push_back({"GSL rk8pd", [](const Equation& e, double tolerance) { return solve(gsl_odeiv2_step_rk8pd, e, tolerance); }});
}
#else
void addGsl(std::vector<Solver>& /*solvers*/) {}
#endif

}  // namespace quarn::bench
