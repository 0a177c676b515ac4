#include <algorithm>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "nonlinear/maxwell_steps.h"
#include "nonlinear/state_laws.h"
#include "numbers/convert.h"

namespace quarn {

namespace {

/// What "opt" and "iopt" say: sizes and the starts of the blocks of weights. In doubles, so that no product overflows.
struct Layout {
  explicit Layout(const chandleNl_inout& h) : q(h.iopt[2]), m(h.iopt[3]) {
    const double dq = q;
    const double dm = m;
    Dv = Cu + (dq + dm) * dq;
    B = Cu + 2.0 * (dq + dm) * dq;
    A = B + dq * dm;
    E = A + dm * dm;
  }
  int q;
  int m;
  double Cu = 5.0;
  double Dv;
  double B;
  double A;
  double E;
};

/// Refuses a block of n weights at opt[start] that "opt" does not hold.
void requireBlock(const chandleNl_inout& h, const char* name, double start, double n) {
  if (n <= 0.0 || (start >= 0.0 && start + n <= h.optLen)) return;
  host::refuse("\"opt\" of law \"Maxw\" must hold values %.0f to %.0f (block %s), got %d values", start + 1.0, start + n, name, h.optLen);
}

void requireBlocks(const chandleNl_inout& h, const Layout& at) {
  requireBlock(h, "Cu", at.Cu, at.q + 1.0);
  requireBlock(h, "Dv", at.Dv, at.q + 1.0);
  requireBlock(h, "B", at.B, at.q);
  if (at.m > 0 && at.q > 0) requireBlock(h, "A", at.A, at.q + (at.m - 1.0) * at.m);
  requireBlock(h, "E", at.E, at.q);
}

double outputOf(const chandleNl_inout& h, const Layout& at, std::ptrdiff_t o) {
  double force = 0.0;
  if (at.q < 0) return force;  // nothing to sum, and the start of the block may be beyond every integer
  const auto Dv = static_cast<std::ptrdiff_t>(at.Dv);
  for (std::ptrdiff_t i = 0; i <= at.q; ++i) force += h.opt[5 + i] * h.unl[o + i] + h.opt[Dv + i] * h.vnl[o + i];
  return force;
}

/// Elements without values: each of n passes writes snl[0], and reads nothing that was written but this, where it lies on unl[0]. Once a
/// pass ends where an earlier one did, the rest repeats what was between, whatever the counts say.
void forceAlone(const chandleNl_inout& h, const Layout& at, long long n) {
  double mark = h.snl[0];
  long long marked = 0;
  for (long long pass = 1; pass <= n; ++pass) {
    h.snl[0] = outputOf(h, at, 0);
    if (sameBits(h.snl[0], mark)) {
      n = pass + (n - pass) % (pass - marked);
      marked = pass;
    } else if (pass >= 2 * marked) {
      mark = h.snl[0];
      marked = pass;
    }
  }
}

}  // namespace

void checkMaxw(const chandleNl_inout& h, const ROr& /*ro*/) {
  if (h.unlSlices < 2) host::fail(fixed::noCommittedPage);
  requireParameters(h, "Maxw", 4);
  if (h.ioptLen < 5) host::refuse("\"iopt\" of law \"Maxw\" must hold 5 values or more, got %d", h.ioptLen);
  const int elements = h.iopt[4];
  if (elements <= 0 || toInt(h.opt[3]) < 1) return;

  const Layout at(h);
  if (at.q < 0 && elements > 1) host::refuse("iopt(3) of law \"Maxw\" must not be negative with %d elements, got %d", elements, at.q);
  const long long last = static_cast<long long>(elements - 1) * at.q;  // base of the last element
  requireValues("Maxw", "snl", h.snlTotal, last + 1);
  if (at.q < 0) return;
  requireValues("Maxw", "unl", h.unlTotal, last + at.q + 1);
  requireValues("Maxw", "vnl", h.vnlTotal, last + at.q + 1);
  if (at.q > 0) {
    const std::size_t end = static_cast<std::size_t>(2LL * h.unlLen + last + std::max(at.m, 0) + 1);
    if (h.unlTotal < end || h.vnlTotal < end) host::fail(fixed::noCommittedPage);
  }
  requireBlocks(h, at);
}

void Maxw(chandleNl_inout* h, ROr ro) {
  const double dt = timeIncrement(h, ro);
  const int steps = toInt(h->opt[3]);
  const int elements = steps >= 1 ? h->iopt[4] : 0;
  // "opt" may share memory with what a run writes: sub-steps can turn up where none were when the sizes were looked at.
  if (elements > 0 && !h->subStepsChecked) {
    checkMaxw(*h, ro);
    h->subStepsChecked = true;
  }
  const Layout at(*h);
  if (at.q <= 0 && elements > 0) forceAlone(*h, at, static_cast<long long>(elements) * steps);
  if (at.q > 0 && elements > 0) {
    const double* opt = h->opt;
    const auto block = [opt](double start) { return opt + static_cast<std::ptrdiff_t>(start); };
    advanceMaxwell(h, {block(at.Cu), block(at.Dv), block(at.B), block(at.A), block(at.E)}, at.q, at.m, elements, steps, dt);
  }
  StoreState(h, ro);
}

}  // namespace quarn
