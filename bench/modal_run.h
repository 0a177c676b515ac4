// An integrator with its arrays, as "chandlediagnewmark" would bind them.
#pragma once

#include <vector>

#include "base/chandle.h"
#include "host/mex_api.h"
#include "integration/diag_newmark.h"

namespace quarn::bench {

/// Modes of a model with frequencies w(i) and damping ratio 2 %, one load input.
struct Modes {
  int n;
  double dt;
  double beta;
  double gamma;
  std::vector<double> w;      ///< angular frequencies
  std::vector<double> shape;  ///< load vector (negative: forces stand on the left)
  double damping = 0.02;

  NewmarkCoefficients coefficients() const;
  std::vector<double> gains() const;  ///< 1 / (1/(beta dt^2) + gamma c/(beta dt) + w^2)
};

/// Frequencies spread evenly over the time step's resolution.
Modes spreadModes(int n);

class ModalRun {
 public:
  /// One step for each load: loads[j] acts in the step from column j. states: rows of u, v and a behind the modes.
  /// gain: n x n, or none for a gain per mode.
  ModalRun(const Modes& m, const std::vector<double>& loads, int states = 0, const std::vector<double>& gain = {});
  void add(chandle* h) { handles.push_back(h); }
  void start();                       ///< u = v = a = 0, then binds and checks everything
  void bind();                        ///< reads the values, as at the head of a call; nothing that has been checked is known any more
  void check();                       ///< what the force handles check at the head of a call, alone
  void run();                         ///< all steps, from the state that is there
  std::vector<double> state() const;  ///< u, v, a of the modes
  double* acceleration() { return mxGetPr(a); }

 private:
  Modes modes;
  int steps;
  mxArray* u;
  mxArray* v;
  mxArray* a;
  mxArray* value;
  mxArray* mem;
  mxArray* out;
  mxArray* model;
  chandleDiagNewmark* integrator;
  std::vector<chandle*> handles;
  ROr context;
};

}  // namespace quarn::bench
