#include "nonlinear/maxwell_steps.h"

#include <algorithm>

#include "numbers/ranges.h"

namespace quarn {

namespace {

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

/// The part of a step that sub-step s of all ends at.
[[gnu::always_inline]] inline double partAt(std::ptrdiff_t s, std::ptrdiff_t steps) {
  return s == steps ? 1.0 : static_cast<double>(s) / static_cast<double>(steps);
}

/// q and m: those of the layout, known to the compiler where elements of that size have code of their own.
[[gnu::always_inline]] inline void subStep(const Element& x, const MaxwellWeights& w, std::ptrdiff_t q, std::ptrdiff_t m, double dt,
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

[[gnu::always_inline]] inline double output(const Element& x, const MaxwellWeights& w, std::ptrdiff_t q) {
  double force = 0.0;
  for (std::ptrdiff_t i = 0; i <= q; ++i) force += w.Cu[i] * x.u[i] + w.Dv[i] * x.v[i];
  return force;
}

/// All sub-steps of each element from number first on, one element after the other.
[[gnu::always_inline]] inline void advance(chandleNl_inout* h, const MaxwellWeights& w, std::ptrdiff_t q, std::ptrdiff_t m,
                                           std::ptrdiff_t first, std::ptrdiff_t elements, std::ptrdiff_t steps, double dt) {
  const std::ptrdiff_t committed = 2 * static_cast<std::ptrdiff_t>(h->unlLen);
  for (std::ptrdiff_t o = first * q; o < elements * q; o += q) {
    const Element x{h->unl + o,
                    h->vnl + o,
                    h->unl + committed + o,
                    h->vnl + committed + o,
                    room(h->vnlTotal, committed + o + 1, q),
                    room(h->unlTotal, committed + o + 1, q)};
    double* force = h->snl + o;
    for (std::ptrdiff_t s = 1; s <= steps; ++s) {
      subStep(x, w, q, m, dt, partAt(s, steps));
      *force = output(x, w, q);
    }
  }
}

/// Elements of which no array is looked at for the memory that it shares.
constexpr std::ptrdiff_t kFew = 8;

/// Whether the arrays of elements with one state lie apart, as far as a step goes through them.
bool apart(const chandleNl_inout& h, std::ptrdiff_t elements) {
  const auto end = static_cast<std::size_t>(2 * (h.unlLen + elements) + 1);
  const Range arrays[] = {{h.unl, std::min(end, h.unlTotal)},
                          {h.vnl, std::min(end, h.vnlTotal)},
                          {h.snl, static_cast<std::size_t>(2 * elements)},
                          {h.opt, static_cast<std::size_t>(h.optLen)}};
  for (int i = 0; i < 3; ++i) {
    if (!apartFrom(arrays + i + 1, 3 - i, arrays[i].data, arrays[i].count)) return false;
  }
  return true;
}

/// The same for elements with one state whose arrays lie apart, have pages of two values or more and hold all committed values: the weights
/// stay in registers, and so does the last rate of an element, which takes the place of the velocities of the next one.
[[gnu::noinline]] void advanceApart(const chandleNl_inout& h, const MaxwellWeights& from, std::ptrdiff_t elements, std::ptrdiff_t steps,
                                    double dt) {
  const double Cu[3] = {from.Cu[0], from.Cu[1], from.Cu[2]};
  const double Dv[3] = {from.Dv[0], from.Dv[1], from.Dv[2]};
  const double B[2] = {from.B[0], from.B[1]};
  const double A[2] = {from.A[0], from.A[1]};
  const double E[2] = {from.E[0], from.E[1]};
  const std::ptrdiff_t committed = 2 * static_cast<std::ptrdiff_t>(h.unlLen);
  double* u = h.unl;
  double* v = h.vnl;
  double* cu = u + committed;
  double* cv = v + committed;
  double v0 = v[0];
  double cv0 = cv[0];
  for (std::ptrdiff_t o = 0; o < 2 * elements; o += 2) {
    const double u0 = u[o];
    const double u2 = u[o + 2];
    const double cu0 = cu[o];
    double x = cu[o + 1];
    double rate = cv[o + 1];
    double beyond = 0.0;
    for (std::ptrdiff_t s = 1; s <= steps; ++s) {
      const double theta = partAt(s, steps);
      x = x + dt * rate;
      const double ui = (1.0 - theta) * cu0 + theta * u0;
      const double vi = (1.0 - theta) * cv0 + theta * v0;
      rate = B[0] * ui + A[0] * x + E[0] * vi;
      beyond = B[1] * ui + A[1] * x + E[1] * vi;
    }
    u[o + 1] = cu[o + 1] = x;
    v[o + 1] = cv[o + 1] = rate;
    v[o + 2] = cv[o + 2] = beyond;
    cu[o + 2] = u2;
    h.snl[o] = 0.0 + (Cu[0] * u0 + Dv[0] * v0) + (Cu[1] * x + Dv[1] * rate) + (Cu[2] * u2 + Dv[2] * beyond);
    v0 = beyond;
    cv0 = beyond;
  }
}

}  // namespace

void advanceMaxwell(chandleNl_inout* h, const MaxwellWeights& w, std::ptrdiff_t q, std::ptrdiff_t m, std::ptrdiff_t elements,
                    std::ptrdiff_t steps, double dt) {
  if (q != 2 || m != 1) return advance(h, w, q, m, 0, elements, steps, dt);
  // One state: the element of Maxwell and Zener. What the last one commits the arrays may not hold.
  const bool many = elements > kFew && h->unlLen > 1 && apart(*h, elements);
  if (many) advanceApart(*h, w, elements - 1, steps, dt);
  advance(h, w, 2, 1, many ? elements - 1 : 0, elements, steps, dt);
}

}  // namespace quarn
