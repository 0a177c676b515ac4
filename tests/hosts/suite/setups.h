// Models that several suites run.
#pragma once

#include "build.h"

namespace build {

/// Everything that "chandlediagnewmark" takes, for modes of frequency 1, 2, ... [rad/s] under a half-sine load.
struct NewmarkRun {
  mxArray* integrator;  ///< the value structure, with "type" as a list element needs it
  mxArray* model;
  mxArray* u;
  mxArray* v;
  mxArray* a;
  mxArray* opt;
  mxArray* mem;
  mxArray* out;
  standin::Arguments arguments(const mxArray* list) const { return {list, model, u, v, a, opt, mem, out}; }
};
NewmarkRun newmarkRun(mwSize modes = 2, mwSize steps = 20, double dt = 0.05);

/// Structure of a nonlinear element on dof 0 of n: force = law(u(1)).
mxArray* element(const char* law, mwSize n, const Values& parameters, const Fields& more = {});
/// A diagonal matrix as a list element of the given type.
mxArray* listMatrix(int type, const Values& diagonal);
/// A square matrix of ones, 200 in each of manyLines lines: as many entries as are shared among worker threads on any machine.
constexpr int manyLines = 2500;
mxArray* manyEntries();
/// fields of a, shared, with one more.
mxArray* withField(const mxArray* a, const char* name, mxArray* value);

}  // namespace build
