#include <algorithm>

#include "base/fixed_errors.h"
#include "host/errors.h"
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

/// Values of a committed page that can be written from offset on, at most n. An unlimited buffer has the largest total there is.
std::ptrdiff_t room(std::size_t total, std::ptrdiff_t offset, std::ptrdiff_t n) {
  const auto first = static_cast<std::size_t>(offset);
  return first < total ? static_cast<std::ptrdiff_t>(std::min(total - first, static_cast<std::size_t>(n))) : 0;
}

/// One element: u, v its values in the first pages, cu, cv the committed ones 2*unlLen further on.
/// keepRates, keepStates: how many committed rates and states the arrays hold; further ones are read by nothing.
struct Element {
  double* u;
  double* v;
  double* cu;
  double* cv;
  std::ptrdiff_t keepRates;
  std::ptrdiff_t keepStates;
};

/// The blocks of weights.
struct Weights {
  Weights(const Layout& at, const double* opt)
      : Cu(opt + 5),
        Dv(opt + static_cast<std::ptrdiff_t>(at.Dv)),
        B(opt + static_cast<std::ptrdiff_t>(at.B)),
        A(opt + static_cast<std::ptrdiff_t>(at.A)),
        E(opt + static_cast<std::ptrdiff_t>(at.E)) {}
  const double* Cu;
  const double* Dv;
  const double* B;
  const double* A;
  const double* E;
};

/// q and m: those of the layout, known to the compiler where elements of that size have code of their own.
[[gnu::always_inline]] inline void subStep(const Element& x, const Weights& w, std::ptrdiff_t q, std::ptrdiff_t m, double dt,
                                           double theta) {
  for (std::ptrdiff_t i = 1; i <= m; ++i) x.u[i] = x.cu[i] + dt * x.cv[i];
  const double u = (1.0 - theta) * x.cu[0] + theta * x.u[0];
  const double v = (1.0 - theta) * x.cv[0] + theta * x.v[0];
  for (std::ptrdiff_t i = 0; i < q; ++i) {
    double rate = w.B[i] * u;
    for (std::ptrdiff_t k = 0; k < m; ++k) rate += w.A[i + k * m] * x.u[1 + k];
    rate += w.E[i] * v;
    x.v[1 + i] = rate;
    if (i < x.keepRates) x.cv[1 + i] = rate;
    if (i < x.keepStates) x.cu[1 + i] = x.u[1 + i];
  }
}

[[gnu::always_inline]] inline double output(const Element& x, const Weights& w, std::ptrdiff_t q) {
  double force = 0.0;
  for (std::ptrdiff_t i = 0; i <= q; ++i) force += w.Cu[i] * x.u[i] + w.Dv[i] * x.v[i];
  return force;
}

/// All sub-steps of each element, one element after the other.
[[gnu::always_inline]] inline void advance(chandleNl_inout* h, const Weights& w, std::ptrdiff_t q, std::ptrdiff_t m,
                                           std::ptrdiff_t elements, std::ptrdiff_t steps, double dt) {
  const std::ptrdiff_t committed = 2 * static_cast<std::ptrdiff_t>(h->unlLen);
  for (std::ptrdiff_t o = 0; o < elements * q; o += q) {
    const Element x{h->unl + o,
                    h->vnl + o,
                    h->unl + committed + o,
                    h->vnl + committed + o,
                    room(h->vnlTotal, committed + o + 1, q),
                    room(h->unlTotal, committed + o + 1, q)};
    double* force = h->snl + o;
    for (std::ptrdiff_t s = 1; s <= steps; ++s) {
      subStep(x, w, q, m, dt, s == steps ? 1.0 : static_cast<double>(s) / static_cast<double>(steps));
      *force = output(x, w, q);
    }
  }
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

void Maxw(chandleNl_inout* h, const ROr& ro) {
  const double dt = timeIncrement(h, ro);
  const int steps = toInt(h->opt[3]);
  const int elements = steps >= 1 ? h->iopt[4] : 0;
  // "opt" may share memory with what a run writes: sub-steps can turn up where none were when the sizes were looked at.
  if (elements > 0) checkMaxw(*h, ro);
  const Layout at(*h);
  if (at.q <= 0 && elements > 0) forceAlone(*h, at, static_cast<long long>(elements) * steps);
  if (at.q > 0 && elements > 0) {
    const Weights w(at, h->opt);
    if (at.q == 2 && at.m == 1) {  // one state: the element of Maxwell and Zener
      advance(h, w, 2, 1, elements, steps, dt);
    } else {
      advance(h, w, at.q, at.m, elements, steps, dt);
    }
  }
  StoreState(h, ro);
}

}  // namespace quarn
