// Parameters and kernel of the "rotcenter" law: a nonlinear link between a point A, which turns with a rotor's rotation DOF, and
// a point B.
//
// With theta and omega the rotation DOF's displacement and velocity, T = R0 * Rz(theta), p and q the coordinates of A (in the
// rotor's frame) and B, uA, vA, uB, vB the points' motions and w the velocity of A per unit of rotation speed:
//   du = (q + uB) - T (p + uA)         fu = table Fu at the components of du
//   dv = vB - T (vA + omega w)         fv = table Fv at the components of dv
//   f = fu + fv acts on B, -T' f on A.
#pragma once

#include "gateway/structures/nl_element.h"

namespace quarn {

/// DOFs of a point: component pos[k] of its motion is DOF dof[k], both 1-based and truncated to integers.
struct PointDofs {
  const double* dof = nullptr;
  const double* pos = nullptr;
  std::size_t n = 0;
};

/// Table with its cursor: knots rows and two columns or more of X (null without knots), three values of cursor.
struct ForceTable {
  const double* X = nullptr;
  int knots = 0;
  double* cursor = nullptr;
};

/// The second column of the element's "Cell" and its tables. Borrowed.
struct RotCenter {
  double rotation = 0.0;          ///< row 1: 1-based number of the rotation DOF
  const double* R0 = nullptr;     ///< row 2: base rotation, 3 x 3
  const double* p = nullptr;      ///< row 3: point A [length]
  const double* q = nullptr;      ///< row 4: point B [length]
  PointDofs A, B;                 ///< rows 5 to 8, where the cell has 14 rows or fewer
  const double* w = nullptr;      ///< row 10: velocity of A per unit rotation speed [length]
  const int* store = nullptr;     ///< row 11: 0-based positions of the forces in "FNL"; null where the cell has no such row
  bool observed = false;          ///< the cell has 15 rows or more: the points' motions are
  const mxArray* obsA = nullptr;  ///< row 15 and
  const mxArray* obsB = nullptr;  ///< row 17, the observation matrices of A and B, times u and v; null: no motion
  ForceTable fu, fv;
};

/// Reads and checks the parameters: with what it returns, the law stays inside all arrays of the call.
RotCenter readRotCenter(const NlCall& call, const NlElement& e);

/// 0-based place of a 1-based number among limit values, truncated to an integer; -1 if it is not among them.
long long place(double number, std::size_t limit);

/// How many values every vector of the call holds.
std::size_t commonLength(const NlCall& call);

}  // namespace quarn
