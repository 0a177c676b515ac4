// Hand-written loops of the integrator's formulas, every step one pass over the modes.
#pragma once

#include <vector>

#include "modal_run.h"

namespace quarn::bench {

/// u, v, a of N modes, one load; diagonal stiffness k and damping c may be absent (null).
struct LoopState {
  explicit LoopState(const Modes& m);
  std::vector<double> u;
  std::vector<double> v;
  std::vector<double> a;
  std::vector<double> gain;
  std::vector<double> shape;
  std::vector<double> k;
  std::vector<double> c;
  NewmarkCoefficients coefficients;
  std::vector<double> state() const;
  void reset();
};

/// One step without forces of the state.
void plainStep(LoopState& s, double load);
/// The same with diagonal stiffness and damping.
void linearStep(LoopState& s, double load);

}  // namespace quarn::bench
