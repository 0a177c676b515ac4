// The step context: what every residual and force law works on.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/mex_api.h"

namespace quarn {

/// Passed by value; owns nothing, all pointers borrow arrays of the current call.
struct ROr {
  std::int32_t N = 0;     ///< degrees of freedom: rows of the displacement argument
  double alpha = 0.0;     ///< Rayleigh coefficient of the mass matrix [1/s]
  double beta = 0.0;      ///< Rayleigh coefficient of the stiffness matrix [s]
  double t = 0.0;         ///< current time [s]; set by the integrator only
  double* u = nullptr;    ///< displacements
  double* v = nullptr;    ///< velocities
  double* a = nullptr;    ///< accelerations; null when the argument is empty
  double* FNL = nullptr;  ///< the model's force store "FNL", or null

  // How many values the pointers lead to, for the checks.
  std::size_t uLen = 0;
  std::size_t vLen = 0;
  std::size_t aLen = 0;
  std::size_t fnlLen = 0;

  std::int32_t begunAtZero = 0;  ///< leading values of the residual that are sums begun at 0: none is a negative zero
};

/// An array that the steps of a run write, and what errors call it. Borrowed.
struct WrittenArray {
  const char* name;
  const double* data;
  std::size_t count;
};

/// The times at which the steps of a run end: count values, stride apart; and the arrays that the steps write. Borrowed.
struct StepTimes {
  const double* first;
  std::ptrdiff_t stride;
  int count;
  const WrittenArray* written;
  int writtenCount;
};

/// Null, or the name of the first of the arrays that the steps write whose memory is among the n values at x.
const char* writtenIn(const StepTimes& times, const double* x, std::size_t n);

/// Builds the context of a call from its arguments: prhs[1] residual vector or handle list (only tested for complex values),
/// prhs[2] model (field "FNL"), prhs[3..5] u, v, a, prhs[6] optional Rayleigh pair [alpha beta], or a struct with it in its field
/// "Rayleigh". Missing coefficients are 0. t is 0.
/// Raises KORV:quarn:Invalid "Real numbers for r", "Real numbers needed."; refuses fewer than 6 arguments and other classes.
ROr getROr(int nrhs, const mxArray** prhs);

}  // namespace quarn
