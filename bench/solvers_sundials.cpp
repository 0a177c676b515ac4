#include "equations.h"

#ifdef QUARN_BENCH_SUNDIALS
#include <arkode/arkode_erkstep.h>
#include <cvode/cvode.h>
#include <nvector/nvector_serial.h>
#include <sunlinsol/sunlinsol_dense.h>
#include <sunmatrix/sunmatrix_dense.h>

#include <stdexcept>
#endif

namespace quarn::bench {

#ifdef QUARN_BENCH_SUNDIALS
namespace {

int rateOf(realtype t, N_Vector y, N_Vector dy, void* equation) {
  static_cast<const Equation*>(equation)->rate(t, N_VGetArrayPointer(y), N_VGetArrayPointer(dy));
  return 0;
}

void require(int flag) {
  if (flag < 0) throw std::runtime_error("SUNDIALS did not reach the end");
}

/// Context and state of one solution.
struct Session {
  explicit Session(const Equation& e) : n(static_cast<sunindextype>(e.size())) {
    SUNContext_Create(nullptr, &context);
    y = N_VNew_Serial(n, context);
    N_VConst(0.0, y);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session() {
    N_VDestroy(y);
    SUNContext_Free(&context);
  }
  std::vector<double> state() const { return {N_VGetArrayPointer(y), N_VGetArrayPointer(y) + n}; }
  sunindextype n;
  SUNContext context = nullptr;
  N_Vector y = nullptr;
};

std::vector<double> cvode(int method, const Equation& e, double tolerance) {
  Session s(e);
  void* memory = CVodeCreate(method, s.context);
  require(CVodeInit(memory, rateOf, 0.0, s.y));
  require(CVodeSetUserData(memory, const_cast<Equation*>(&e)));
  require(CVodeSStolerances(memory, tolerance, 0.01 * tolerance));
  require(CVodeSetMaxNumSteps(memory, 100000000));
  SUNMatrix matrix = SUNDenseMatrix(s.n, s.n, s.context);
  SUNLinearSolver solver = SUNLinSol_Dense(s.y, matrix, s.context);
  require(CVodeSetLinearSolver(memory, solver, matrix));
  double t = 0.0;
  require(CVodeSetStopTime(memory, e.end));
  require(CVode(memory, e.end, s.y, &t, CV_NORMAL));
  CVodeFree(&memory);
  SUNLinSolFree(solver);
  SUNMatDestroy(matrix);
  return s.state();
}

std::vector<double> arkode(const Equation& e, double tolerance) {
  Session s(e);
  void* memory = ERKStepCreate(rateOf, 0.0, s.y, s.context);
  require(ERKStepSetUserData(memory, const_cast<Equation*>(&e)));
  require(ERKStepSStolerances(memory, tolerance, 0.01 * tolerance));
  require(ERKStepSetMaxNumSteps(memory, 100000000));
  double t = 0.0;
  require(ERKStepSetStopTime(memory, e.end));
  require(ERKStepEvolve(memory, e.end, s.y, &t, ARK_NORMAL));
  ERKStepFree(&memory);
  return s.state();
}

}  // namespace

void addSundials(std::vector<Solver>& solvers) {
  solvers.push_back({"CVODE Adams", [](const Equation& e, double tolerance) { return cvode(CV_ADAMS, e, tolerance); }});
  solvers.push_back({"CVODE BDF", [](const Equation& e, double tolerance) { return cvode(CV_BDF, e, tolerance); }});
  solvers.push_back({"ARKODE ERK", arkode});
}
#else
void addSundials(std::vector<Solver>& /*solvers*/) {}
#endif

}  // namespace quarn::bench
