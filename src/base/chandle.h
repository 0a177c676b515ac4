// Base of every persistent object: its value and its type code.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/handle_type.h"
#include "base/ror.h"
#include "host/arrays.h"
#include "numbers/ranges.h"

namespace quarn {

/// A computational object made from a host value. Registered handles own a deep duplicate of that value; handles made for
/// one call from a cell element borrow it. Objects live in host memory (mxCalloc): made for one call they go with it, also
/// after an error; registered ones are made persistent. The destructor is not virtual on purpose: derived classes own nothing.
class chandle {
 public:
  chandle() = default;
  chandle(const chandle&) = delete;
  chandle& operator=(const chandle&) = delete;
  ~chandle() { doFree(); }

  /// Derives working pointers from the value; called each time the handle is gathered for use.
  virtual void initCpt() {}
  /// Commits the state after an accepted time step.
  virtual void EndStep() {}
  /// Whether EndStep has something to do in a run that begins now.
  virtual bool endsSteps() const { return true; }
  /// Adds this handle's contribution to r (in-out, ctx.N values). Trusts what checkSizes has established.
  virtual void Residual(ROr /*ctx*/, double* /*r*/) {}

  /// The times of the steps of a run that begins now, before checkSizes. Only the integrator has them.
  virtual void takeTimes(const StepTimes& /*times*/) {}
  /// Refuses what Residual and EndStep would read or write outside the arrays of ctx and the rLen values of r.
  /// Called once for a call or a run of the integrator, before the first Residual.
  virtual void checkSizes(const ROr& /*ctx*/, std::size_t /*rLen*/) {}
  /// Takes the host memory of the current call that Residual works in; r: what it will add to. Called once, after checkSizes, when no
  /// function of the user's can run before Residual: one that calls quarn with the same handle would leave memory of a call here that has
  /// ended.
  virtual void takeWork(host::Doubles /*r*/) {}
  /// Whether nothing but u, v, a, the force store and the value's own arrays is looked at or written in a step, those arrays lie apart from
  /// the count ranges, and Residual neither ends the call nor calls the host. Asked for a run of the integrator, after takeWork.
  virtual bool keepsToItself(const Range* /*ranges*/, int /*count*/) const { return false; }
  /// Offset of the first value after the state block that the handle writes into ctx.u; 0 if it writes none.
  virtual std::int64_t stateEnd() const { return 0; }
  /// Diagonal of a matrix handle whose matrix is diagonal; null for all others.
  virtual const double* diagonalValues() const { return nullptr; }

  /// Stores both; a previous value is not released.
  void set_val(int newType, mxArray* v) {
    type = newType;
    val = v;
    verified = false;
  }
  /// The value; prints "Empty value\n" and makes a 0x0 matrix where there is none. Callers return duplicates of it, never itself.
  mxArray* get_val();
  /// Destroys the value, except that of a nonlinear element, which stays in memory by rule; then no value and no type.
  void doFree();

  /// In use by a call that may wait for a function of the user's: see disturbedUses in handle_walk.h.
  bool inUse = false;

  mxArray* val = nullptr;
  std::int32_t type = 0;

 protected:
  /// The indices in the value have been checked; a registered value cannot change afterwards.
  bool verified = false;
};

}  // namespace quarn
