#include "gateway/energies_command.h"

#include <cmath>

#include "host/arrays.h"
#include "host/errors.h"
#include "integration/motion_energies.h"
#include "sparse/command_arguments.h"

namespace quarn {

namespace {

const double* values(const mxArray* a, std::size_t n, const char* name, const char* why) {
  const host::Doubles x = host::doubles(a, name);
  if (x.count != n) host::refuse("%s must hold %zu values, %s, got %zu", name, n, why, x.count);
  return x.data;
}

/// Directions, with a row for each of n modes, and values, with a column for each of the columns; without both there are no forces.
ModalForces forces(const mxArray* directions, const char* name, const mxArray* given, const char* valuesName, std::size_t n,
                   std::size_t columns) {
  const host::Doubles along = host::doubles(directions, name);
  const host::Doubles f = host::doubles(given, valuesName);
  const std::size_t count = host::rowCount(given);
  if (!along && !f) return {};
  if (host::columnCount(given) != columns) {
    host::refuse("%s must have %zu columns, one for each of Q, got %s", valuesName, columns, host::describe(given).text);
  }
  if (host::rowCount(directions) != n || host::columnCount(directions) != count) {
    host::refuse("%s must be %zu x %zu, with a row for each of Q and a column for each row of %s, got %s", name, n, count, valuesName,
                 host::describe(directions).text);
  }
  return {count, along.data, f.data};
}

}  // namespace

void commandEnergies(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 7 || nrhs > 11) host::refuse("expected 7 to 11 inputs (command, Q, K, C, [h gamma], V0, A0, S, L, B, F), got %d", nrhs);
  const host::Doubles q = host::doubles(prhs[1], "Q");
  const std::size_t n = host::rowCount(prhs[1]);
  const std::size_t columns = host::columnCount(prhs[1]);
  const char* const each = "one for each row of Q";
  const double* scheme = values(prhs[4], 2, "[h gamma]", "the step and the scheme's number");
  if (!(scheme[0] > 0.0 && std::isfinite(scheme[0]) && scheme[1] >= 0.0 && std::isfinite(scheme[1]))) {
    host::refuse("[h gamma] must be a finite step above 0 and a finite number from 0 on, got %g and %g", scheme[0], scheme[1]);
  }
  const ModesInMotion modes{n,         values(prhs[2], n, "K", each),  values(prhs[3], n, "C", each), scheme[0],
                            scheme[1], values(prhs[5], n, "V0", each), values(prhs[6], n, "A0", each)};
  const ModalForces loads = forces(argument(nrhs, prhs, 7), "S", argument(nrhs, prhs, 8), "L", n, columns);
  const ModalForces elements = forces(argument(nrhs, prhs, 9), "B", argument(nrhs, prhs, 10), "F", n, columns);
  plhs[0] = zeros(4, columns, mxREAL);
  for (int k = 1; k < nlhs && k < 3; ++k) plhs[k] = zeros(n, columns, mxREAL);
  double* work = host::zeros(motionEnergiesWork(n, loads.count, elements.count));
  motionEnergies(modes, q.data, columns, loads, elements,
                 {mxGetPr(plhs[0]), nlhs > 1 ? mxGetPr(plhs[1]) : nullptr, nlhs > 2 ? mxGetPr(plhs[2]) : nullptr}, work);
  mxFree(work);
}

}  // namespace quarn
