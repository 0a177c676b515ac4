// The law "Maxw" against its formulas written down one after the other, where its arrays lie apart and where they lie on each other.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include "nonlinear/state_laws.h"
#include "numbers/convert.h"

namespace quarn {
namespace {

/// Where the arrays begin in one stretch of memory.
struct Layout {
  int elements, states, length, steps;
  std::size_t unl, vnl, snl, opt;
  std::size_t pages;  ///< values of unl, and of vnl
};

constexpr int optLen = 90;

/// Evaluated three times: states feed on each other.
std::vector<double> computed(const Layout& at, std::vector<double> m) {
  const int iopt[5] = {-1, 0, at.states + 1, at.states, at.elements};
  chandleNl_inout h;
  h.iopt = iopt;
  h.ioptLen = 5;
  h.unl = m.data() + at.unl;
  h.vnl = m.data() + at.vnl;
  h.snl = m.data() + at.snl;
  h.opt = m.data() + at.opt;
  h.optLen = optLen;
  h.unlLen = at.length;
  h.unlSlices = 3;
  h.unlTotal = h.vnlTotal = at.pages;
  h.snlTotal = static_cast<std::size_t>(at.elements * (at.states + 1));
  for (int k = 0; k < 3; ++k) Maxw(&h, ROr{});
  return m;
}

std::vector<double> defined(const Layout& at, std::vector<double> m) {
  const int q = at.states + 1;
  const double* opt = m.data() + at.opt;
  const double* Cu = opt + 5;
  const double* Dv = Cu + (q + at.states) * q;
  const double* B = Dv + (q + at.states) * q;
  const double* A = B + q * at.states;
  const double* E = A + at.states * at.states;
  for (int k = 0; k < 3; ++k) {
    const double dt = opt[2];
    const int steps = toInt(opt[3]);
    for (int e = 0; e < at.elements; ++e) {
      double* u = m.data() + at.unl + e * q;
      double* v = m.data() + at.vnl + e * q;
      const int committed = 2 * at.length;
      const auto holds = [&](int i) { return static_cast<std::size_t>(committed + e * q + i) < at.pages; };
      for (int s = 1; s <= steps; ++s) {
        const double theta = s == steps ? 1.0 : static_cast<double>(s) / steps;
        for (int i = 1; i <= at.states; ++i) u[i] = u[committed + i] + dt * v[committed + i];
        const double x = (1.0 - theta) * u[committed] + theta * u[0];
        const double w = (1.0 - theta) * v[committed] + theta * v[0];
        for (int i = 0; i < q; ++i) {
          double rate = B[i] * x;
          for (int j = 0; j < at.states; ++j) rate += A[i + j * at.states] * u[1 + j];
          rate += E[i] * w;
          v[1 + i] = rate;
          if (holds(1 + i)) v[committed + 1 + i] = rate;
          if (holds(1 + i)) u[committed + 1 + i] = u[1 + i];
        }
        double force = 0.0;
        for (int i = 0; i <= q; ++i) force += Cu[i] * u[i] + Dv[i] * v[i];
        m[at.snl + static_cast<std::size_t>(e * q)] = force;
      }
    }
  }
  return m;
}

void expectDefined(const Layout& at, const std::vector<double>& memory) {
  const std::vector<double> got = computed(at, memory);
  const std::vector<double> wanted = defined(at, memory);
  for (std::size_t i = 0; i < got.size(); ++i) {
    ASSERT_TRUE(sameBits(got[i], wanted[i]) || (std::isnan(got[i]) && std::isnan(wanted[i])))
        << "value " << i << " of " << at.elements << " elements with " << at.states << " states, pages of " << at.length << ": " << got[i]
        << ", not " << wanted[i];
  }
}

class Random {
 public:
  explicit Random(unsigned seed) : gen(seed) {}
  int pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(gen); }
  /// Now and then a negative zero or an infinite one, which a factor of 0 does not take away.
  double value() {
    const int kind = pick(0, 400);
    if (kind == 0) return -0.0;
    if (kind == 1) return HUGE_VAL;
    return std::uniform_real_distribution<double>(-0.7, 0.7)(gen);
  }
  /// Elements whose pages hold from fewer values than they have to more; the arrays one after the other, with gaps.
  Layout layout() {
    Layout at{};
    at.states = pick(0, 3) ? 1 : pick(2, 3);
    at.elements = pick(1, 24);
    at.steps = pick(0, 2) ? 1 : pick(2, 4);
    const int values = at.elements * (at.states + 1);
    at.length = pick(0, 2) ? values : pick(1, values + 3);
    at.pages = static_cast<std::size_t>(2 * at.length + (at.elements - 1) * (at.states + 1) + at.states + 1 + pick(0, 3));
    at.unl = 1;
    at.vnl = at.unl + at.pages + 1;
    at.snl = at.vnl + at.pages + 1;
    at.opt = at.snl + static_cast<std::size_t>(values) + 14;
    return at;
  }
  std::vector<double> memory(const Layout& at) {
    std::vector<double> m(at.opt + optLen);
    for (double& x : m) x = value();
    m[at.opt + 2] = 0.25;
    m[at.opt + 3] = at.steps;
    return m;
  }

 private:
  std::mt19937 gen;
};

TEST(Maxwell, ElementsWhoseArraysLieApartFollowTheirFormulas) {
  Random random(41);
  for (int round = 0; round < 1500; ++round) {
    const Layout at = random.layout();
    expectDefined(at, random.memory(at));
  }
}

// Each array in turn is moved onto another one.
TEST(Maxwell, ElementsWhoseArraysLieOnEachOtherFollowTheirFormulas) {
  Random random(42);
  for (int round = 0; round < 1500; ++round) {
    const Layout whole = random.layout();
    Layout at = whole;
    const std::size_t begin[] = {whole.unl, whole.vnl, whole.snl, whole.opt};
    std::size_t* arrays[] = {&at.unl, &at.vnl, &at.snl};
    const int moved = random.pick(0, 2);
    const int onto = (moved + random.pick(1, 3)) % 4;
    *arrays[moved] = begin[onto] + static_cast<std::size_t>(random.pick(onto == 3 ? 5 : moved == 2 ? 0 : 1, 12));
    std::vector<double> m = random.memory(whole);
    m.resize(m.size() + whole.pages, 0.125);  // what is moved may end there
    expectDefined(at, m);
  }
}

}  // namespace
}  // namespace quarn
