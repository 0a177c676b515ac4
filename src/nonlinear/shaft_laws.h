// Laws of a round shaft in a round housing: they observe its position and velocity in two directions, and hold no states.
#pragma once

#include "nonlinear/nl_inout.h"

namespace quarn {

// The page of unl holds pairs (x, y) of displacements relative to the housing [m], vnl their rates [m/s], snl the forces in x and y [N],
// which are added to the residual: a positive one pushes back. The shaft turns from x to y. Indices into opt count from 0.

/// Contact of a round shaft in a round clearance, with friction. With r the distance from the housing's centre, d = r - gap, n = (x, y)/r
/// and t = (-y, x)/r the force is 0 for d <= 0, else N n + T t with
///   N = max (0, k d^p (1 + chi d'))        K. H. Hunt and F. R. E. Crossley, J. Applied Mechanics 42, 1975; clipped: it never pulls
///   T = mu N s / sqrt (s^2 + s0^2)         s = t . v + R W, the speed at which the shaft's surface slides past the housing
/// opt: gap [m], k [N/m^p], p, chi [s/m], mu, s0 [m/s], R [m], W [rad/s], x and y of the housing's centre [m], from opt[1] on.
void FuRadial(chandleNl_inout* h, ROr ro);

/// Oil film of a plain bearing that is short compared with its diameter, full of oil where the film is squeezed and empty where it
/// widens (half film: negative pressures are left out). In units of the clearance c, x, y the position, x', y' its rate [1/s]:
///   a = y W + 2 x',  b = x W - 2 y',  n = sqrt (a^2 + b^2),  X = (x a - y b)/n,  Y = (x b + y a)/n,  s = 1 - x^2 - y^2
/// are the rate at which the film is squeezed, n cos (p), p counted from where that is greatest, and the position seen from there. The
/// pressure of the short bearing, 3 mu (L^2/4 - z^2) n cos (p)/(c^2 h^3) with h = 1 - X cos (p) - Y sin (p), integrated from -pi/2 to pi/2:
///   A = integral of cos (p)^2/h^3        = (3 X + g (s + 3 X^2))/s^2,    g = atan2 (sqrt (s), -X)/sqrt (s)
///   B = integral of cos (p) sin (p)/h^3  = Y (2 + X^2/(1 - Y^2) + 3 X g)/s^2
///   F = mu R L^3/(2 c^2) (A a + B b, B a - A b)
/// Near the wall, s < 0.1 X^2, and X < 0 (the film opens) A and B are summed as series, as their numerators cancel there.
/// It is 0 where n is, and with W = 0 the film of a squeeze film damper. Beyond the eccentricity e1 the position counts as that on the
/// circle of e1 in the same direction: the force stays finite and continuous, and opt[9] shows how far out it was. opt: mu [Pa s], length
/// L, radius R, c [m], W [rad/s], e1, x and y of the bearing's centre [m], from opt[1] on; opt[9] is raised to the greatest
/// sqrt (x^2 + y^2) that is met, in units of c. Sources: F. W. Ocvirk, NACA TN 2808, 1952; G. B. DuBois and F. W. Ocvirk, NACA Report 1157,
/// 1953; the integrals from the second derivatives of that of 1/h for X and Y.
void FuJournal(chandleNl_inout* h, ROr ro);

// Refuse fewer values than the law reads or writes, a page of unl that holds no pairs, a gap below 0, a clearance that is not above 0, and
// an e1 that is not between 0 and 1.
void checkRadial(const chandleNl_inout& h, const ROr& ro);
void checkJournal(const chandleNl_inout& h, const ROr& ro);

/// What both laws need: that many parameters in opt, whole pairs in unl, as many values in vnl and snl, unl and vnl apart.
void requirePairs(const chandleNl_inout& h, const char* law, int parameters);

}  // namespace quarn
