// A factor of time on a matrix of a run: the gyroscopic matrix of a rotor that runs up, a stiffness that changes.
#pragma once

#include "base/chandle.h"
#include "host/arrays.h"
#include "integration/knots.h"

namespace quarn {

/// Optional field "factor" of a stiffness or damping handle: 2 x n, times in row 1, factors in row 2, linear in between. Borrows the value.
class TimeFactor {
 public:
  /// Reads the field of a handle's value; absent or without elements there is no factor. owner: "the stiffness matrix". Refuses another
  /// class or shape, values that are not finite, and times that do not ascend (two equal ones are a jump, which has the mean of its sides).
  void read(const mxArray* value, const char* owner);
  explicit operator bool() const { return table != nullptr; }
  /// Refuses times of steps that the table does not cover, and a table in memory that the steps write.
  void take(const StepTimes& times, const char* owner);
  /// Refuses a call that has not given the times of its steps: one of "residual".
  void checkTaken(const char* owner) const;
  /// The factor at a time that the table covers.
  double value(double t);

 private:
  const double* table = nullptr;
  Knots knots;
  bool taken = false;
};

}  // namespace quarn
