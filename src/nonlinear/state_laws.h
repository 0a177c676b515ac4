// The force laws that carry internal states in "unl", and what they share.
#pragma once

#include <cmath>

#include "nonlinear/nl_inout.h"

namespace quarn {

// Each law reads the observed values that Residual has put into the first page of unl (and vnl), writes its forces to snl and its
// new states to unl, and ends with StoreState. opt[2] is the time increment h [s] of the law; where it is 0, the law sets it to
// ro.t once and keeps it. Indices into opt and iopt count from 0.

/// Linear internal-state model of n_e = iopt[4] elements, integrated in n_s = opt[3] explicit sub-steps of length h.
///
/// Element e takes q = iopt[2] values of unl and vnl from o = e*q on: the observed value, then m = iopt[3] states. Its committed
/// values lie 2*unlLen further on. The blocks of weights follow each other in opt from opt[5] on: Cu and Dv with (q+m)*q values
/// each, B with q*m, A (m x m, column-major), E. Each sub-step forms
///   x = x_committed + h*rate_committed,  rate = B*u + A*x + E*v,  snl[o] = sum over i = 0..q of Cu[i]*unl[o+i] + Dv[i]*vnl[o+i]
/// with u and v interpolated from the committed to the current observation, and commits rate and x at once.
/// Sources: J. C. Maxwell, On the dynamical theory of gases (1867); C. Zener, Elasticity and Anelasticity of Metals (1948).
void Maxw(chandleNl_inout* h, ROr ro);

/// Dahl friction in pairs (observed displacement, force state): dF = v*h*k*(1 - sign(v)*F/Fmax)^e, clamped to +-Fmax, with
/// k = opt[3] [N/m], e = opt[4], Fmax = opt[5]*opt[6] [N]. A velocity of 0 counts as negative.
/// Source: P. R. Dahl, A solid friction model, Aerospace Corporation TOR-0158(3107-18)-1 (1968).
void FuDahlC(chandleNl_inout* h, ROr ro);

/// Stick-slip in pairs (observed displacement x, slider position y): the slider moves when |trunc((y - x)*k + y*kg)| reaches Fs,
/// with k = opt[4], Fs = opt[5], kg = opt[6]. The first pair that sticks ends the walk; one force is written,
/// snl[0] = (unl[0] - unl[1])*k + opt[3]*unl[0].
void STS(chandleNl_inout* h, ROr ro);

/// Two Dahl branches whose limit mu*g0 and stiffness g1 are tabulated over a third observed value, and a third force that follows
/// g0. Groups of five in unl: three observed displacements, two force states; k = opt[3], e = opt[4], mu = opt[5],
/// offset = opt[6], the table as for FuTable at iopt[5..8]. Every group writes snl[0..2] and uses unl[0..2] for the terms in k.
void Clima2(chandleNl_inout* h, ROr ro);

/// Smooth hysteresis in groups of three (observed displacement x, state z, the displacement at the last evaluation):
///   snl = k*(alpha*x + (1 - alpha)*z),  dz/dx = A - |z|^n*(gamma + beta*sign(z*dx))
/// with k = opt[3], alpha = opt[4], A = opt[5], beta = opt[6], gamma = opt[7], n = opt[8]. z is advanced by the displacement since the last
/// evaluation with the Runge-Kutta rule of fourth order, in at most 32 equal parts, and held at its limit (A/(beta + gamma))^(1/n): no
/// increment is too large, and an evaluation at the same place changes nothing. opt[2] is not used. Sources: R. Bouc, Forced vibration of
/// mechanical systems with hysteresis (1967); Y.-K. Wen, J. Engineering Mechanics Division ASCE 102 (1976).
void FuBoucWen(chandleNl_inout* h, ROr ro);

// Refuse what the law of that name would read or write outside the arrays of the handle. checkMaxw also raises
// "Need unlj1 as last dim" where unl has fewer than two pages or ends before a committed value that the law reads.
void checkMaxw(const chandleNl_inout& h, const ROr& ro);
void checkDahlC(const chandleNl_inout& h, const ROr& ro);
void checkSts(const chandleNl_inout& h, const ROr& ro);
void checkClima2(const chandleNl_inout& h, const ROr& ro);
void checkBoucWen(const chandleNl_inout& h, const ROr& ro);

/// h of the law, after it has been set to ro.t where it was 0.
inline double timeIncrement(chandleNl_inout* h, const ROr& ro) {
  if (h->opt[2] == 0.0) h->opt[2] = ro.t;
  return h->opt[2];
}

/// Direction of motion as the hysteretic laws see it: rest and NaN count as negative.
inline double direction(double v) { return v > 0.0 ? 1.0 : -1.0; }

/// Force of a Dahl branch after one increment: growth where z is positive, then the clamp to +-fMax. A NaN stays NaN.
inline double dahlIncrement(double f, double z, double v, double h, double stiffness, double exponent, double fMax) {
  if (z > 0.0) f = f + v * h * stiffness * std::pow(z, exponent);
  f = fMax < f ? fMax : f;
  return -fMax > f ? -fMax : f;
}

// Building blocks of the checks.

/// Refuses a law that finds fewer than n parameters in opt, or no "iopt" for StoreState. law: its keyword, for the text.
void requireParameters(const chandleNl_inout& h, const char* law, int n);
/// Refuses an array (name: "unl", "vnl" or "snl") that holds have values where the law touches need of them.
void requireValues(const char* law, const char* name, std::size_t have, long long need);
/// Start of the last group of `stride` values that begins inside the first page of unl; -1 where there is none.
inline long long lastGroupStart(const chandleNl_inout& h, int stride) {
  return h.unlLen > 0 ? static_cast<long long>((h.unlLen - 1) / stride) * stride : -1;
}

}  // namespace quarn
