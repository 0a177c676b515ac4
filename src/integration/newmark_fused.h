// The same formulas as newmark_kernels.h with fewer passes over the modes, for arrays that lie apart from each other.
//
// Results have the bits of newmarkPredict, newmarkLoad, the diagonal handles' residuals and newmarkCorrect, one after the other.
#pragma once

#include "integration/newmark_kernels.h"

namespace quarn {

/// Diagonal forces that come right after the modal load: f += k*(u + beta*v), then f += c*v. Either may be absent (null), c where
/// k is.
struct DiagonalForces {
  const double* k = nullptr;
  double beta = 0.0;
  const double* c = nullptr;
};

/// Which of them act: a kernel for each.
enum class With { nothing, stiffness, both };

/// u, v, a of n modes (in-out). Nothing else may overlap them.
struct ModalState {
  double* u;
  double* v;
  double* a;
  int n;
};

/// Keeps u, v and a in copyU, copyV, copyA (out, n values each), predicts them, and starts the modal force f (out):
/// load vectors times loads in column order, then the diagonal forces. r holds nb columns of n values.
void newmarkBegin(const ModalState& x, double* copyU, double* copyV, double* copyA, double* f, const double* r, const double* loads, int nb,
                  const DiagonalForces& forces, const NewmarkCoefficients& k);

/// The correction of a step and the beginning of the next one: newmarkCorrect, then newmarkBegin without its copies. The acceleration in
/// between is not written: x.a is 0 before and after, and not touched. f (in-out): forces of the step that ends, then of the next. The
/// displacements in between go to save where it is not null.
void newmarkNext(const ModalState& x, double* f, const double* gain, const double* r, const double* loads, int nb,
                 const DiagonalForces& forces, const NewmarkCoefficients& k, double* save);

}  // namespace quarn
