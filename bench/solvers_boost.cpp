#include "equations.h"

#ifdef QUARN_BENCH_BOOST
#include <boost/numeric/odeint.hpp>
#endif

namespace quarn::bench {

#ifdef QUARN_BENCH_BOOST
namespace {

template <class Stepper>
std::vector<double> solve(const Equation& e, double tolerance) {
  std::vector<double> y(e.size());
  const auto rate = [&e](const std::vector<double>& x, std::vector<double>& dx, double t) { e.rate(t, x.data(), dx.data()); };
  const auto stepper = boost::numeric::odeint::make_controlled(0.01 * tolerance, tolerance, Stepper());
  boost::numeric::odeint::integrate_adaptive(stepper, rate, y, 0.0, e.end, 1e-4);
  return y;
}

}  // namespace

void addBoost(std::vector<Solver>& solvers) {
  solvers.push_back({"Boost dopri5", solve<boost::numeric::odeint::runge_kutta_dopri5<std::vector<double>>>});
  solvers.push_back({"Boost fehlberg78", solve<boost::numeric::odeint::runge_kutta_fehlberg78<std::vector<double>>>});
}
#else
void addBoost(std::vector<Solver>& /*solvers*/) {}
#endif

}  // namespace quarn::bench
