// Problems that every integrator can solve: y' = f(t, y) with y = (displacements, velocities, friction forces).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "modal_run.h"

namespace quarn::bench {

struct Equation {
  std::string name;
  Modes modes;  ///< frequencies, damping ratio, load vector (with its sign turned)
  double end;   ///< from t = 0, y = 0
  std::function<double(double)> load;
  int frictions = 0;
  std::function<void(double t, const double* y, double* dy)> rate;
  std::function<std::vector<chandle*>(double dt)> elements;  ///< quarn's handles for the nonlinear forces

  std::size_t size() const { return 2 * modes.w.size() + static_cast<std::size_t>(frictions); }
};

Equation duffing();        ///< one mass on a hardening spring
Equation beamWithGap();    ///< 100 modes of a beam that hits two stops at midspan
Equation frictionChain();  ///< 20 masses in a row, a Dahl slider under each

/// Solves to the end with a tolerance (relative; absolute a hundredth of it); the state there.
struct Solver {
  std::string name;
  std::function<std::vector<double>(const Equation&, double tolerance)> solve;
};
void addSundials(std::vector<Solver>& solvers);
void addGsl(std::vector<Solver>& solvers);
void addBoost(std::vector<Solver>& solvers);

}  // namespace quarn::bench
