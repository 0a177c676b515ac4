// Linear residual of a model given as matrices.
#pragma once

#include "base/ror.h"
#include "host/arrays.h"
#include "sparse/sparse_view.h"

namespace quarn {

/// One term of the linear residual. K is the cell {M, C, K}; code selects the term:
///   -2  M*a + alpha*M*v   (the first part only with an acceleration)
///   -3  C*v               C a matrix, or a struct with modal damping: "def" (n x m modes), "data" (2m values: m coefficients
///                         and m places of work, which hold the damped modal velocities afterwards), optional matrix "K"
///   -1  K*u + beta*K*v
class KorvTerm {
 public:
  /// Looks at the matrix and refuses what add would read or write outside the arrays; indices of products are tested by add.
  /// Raises "Implemented for sparse matrices" for a dense matrix; another code prints "Type %i" and raises "Not a supported residual".
  /// Everything is borrowed for the call.
  KorvTerm(int code, const ROr& context, const mxArray* K, host::Doubles residual);

  /// Adds the term to the residual (in-out, context.N values). A column with an index outside adds nothing; it is refused when the
  /// others have been added.
  void add() const;

 private:
  struct Factor {
    const double* data;
    std::size_t count;
    const char* name;
  };

  void readMatrix(const mxArray* a, Factor of);
  void readModalDamping(const mxArray* C, Factor v);
  void addModalDamping() const;
  void addProduct() const;

  const ROr& c;
  host::Doubles r;
  const char* name;     ///< of the matrix, for the texts
  SparseView matrix;    ///< no matrix where the term has none
  Factor product{};     ///< what the matrix is multiplied with; null: no product
  double rayleigh = 0;  ///< factor of the serial term with v; 0: none
  host::Doubles modes;  ///< modal damping: n x m
  host::Doubles coefficients;
  int n = 0;
  int m = 0;
};

}  // namespace quarn
