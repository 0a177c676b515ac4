// The nonlinear element handle: observe, apply a force law, scatter the forces.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/chandle.h"
#include "host/arrays.h"
#include "nonlinear/observation.h"
#include "nonlinear/quarn_law.h"
#include "nonlinear/scatter.h"
#include "sparse/sparse_view.h"

namespace quarn {

class chandleNl_inout;

/// A force law: reads the observed values and states in unl (and rates in vnl), writes the forces to snl and new states to unl.
using NlForceLaw = void (*)(chandleNl_inout* h, ROr ro);
/// Refuses what the law would read or write outside the handle's arrays.
using NlLawCheck = void (*)(const chandleNl_inout& h, const ROr& ro);

/// Input/output element. Its value is a struct; every array stays the host's, the handle borrows pointers into it:
///   "c"    observation matrix: unl = c*u, vnl = c*v (Prod_Mt_ub)
///   "b"    command matrix: r += b'*snl in the sense of Add_Mt_ub
///   "unl"  observed displacements and, after them or in further pages (third dimension), internal states
///   "vnl"  observed velocities, optional; "snl" forces, optional (absent or empty: the forces overwrite unl)
///   "opt"  parameters of the law, opt[0] its code; "iopt" (int32, optional) offsets and table places
class chandleNl_inout final : public chandle {
 public:
  /// Reads the value. Raises KORV:quarn:empty "ReportEB opt", "Unknown .opt(1) choice", "FuPower requires 3 parameters", "Incorrect unl",
  /// KORV:quarn:conform "iopt must be int32".
  void initCpt() override;
  /// Copies unlLen values of unl, and of vnl, from place 2*unlSlices to the front; nothing with fewer than two pages.
  void EndStep() override;
  bool endsSteps() const override { return unlSlices > 1; }
  /// Observes ro.u and ro.v in the first pages of unl and vnl, evaluates the law, adds the forces to r (in-out, ro.N values).
  void Residual(ROr ro, double* r) override;
  void takeTimes(const StepTimes& times) override { cWritten = writtenIn(times, c.pr, c.prLen) != nullptr; }
  void checkSizes(const ROr& ro, std::size_t rLen) override;
  void takeWork(host::Doubles r) override;
  bool keepsToItself(const Range* ranges, int count) const override;
  std::int64_t stateEnd() const override;

  // What a step looks at comes first and fills few lines of the cache: with a thousand small elements memory sets the pace.
  bool tableAscends = false;     ///< the abscissae of the law's table ascend, and nothing that a run writes lies on them
  bool subStepsChecked = false;  ///< of law "Maxw": an evaluation of this call had sub-steps, and the arrays hold what they need
  NlForceLaw law = nullptr;
  double* unl = nullptr;
  double* vnl = nullptr;
  double* snl = nullptr;
  double* opt = nullptr;
  const int* iopt = nullptr;
  int unlLen = 0;  ///< values in one page of unl
  int optLen = 0;
  int ioptLen = 0;
  int unlSlices = 0;  ///< pages of unl; 0 when it is absent

 private:
  Observation observation;
  Scatter scatter;

 public:
  SparseView c;
  SparseView b;
  NlLawCheck check = nullptr;
  const quarn_law* user = nullptr;  ///< of law "User": its library's law, or
  mxArray* call = nullptr;          ///< its function

  // Values that the arrays hold in all.
  std::size_t unlTotal = 0;
  std::size_t vnlTotal = 0;
  std::size_t snlTotal = 0;

 private:
  void readStates();
  void readOptions();
  void planTable(host::Doubles r);
  void checkViews(const ROr& ro, std::size_t rLen);
  void checkObservation(const ROr& ro);
  void checkCommand(std::size_t rLen);

  int cLargest = -1;
  int bLargest = -1;
  bool pagesApart = false;  ///< unl and vnl lie apart from the state that they are observed from
  bool optApart = false;    ///< the law's parameters lie apart from what a run writes
  bool cApart = false;      ///< the values of c lie apart from the state, the force store and the element's own arrays
  bool cWritten = false;    ///< the steps of the run write on them
};

/// Copies forces to ro.FNL (from iopt[0] on, if not negative) and state blocks to ro.u (from iopt[1] on, if positive): for each of
/// iopt[4] blocks the source cursor in unl passes iopt[2] values, then iopt[3] values are copied. Every block goes to the same
/// place, so the last one remains. Called at the end of the laws with states. What falls outside an array is left out.
void StoreState(chandleNl_inout* h, ROr ro);

/// The first half of it alone, for laws without states; works without "iopt".
void storeForces(const chandleNl_inout& h, const ROr& ro);

}  // namespace quarn
