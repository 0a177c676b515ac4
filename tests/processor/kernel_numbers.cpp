// Compiled once for each processor version, with the kernels in a namespace of that version.
#include "processor/kernel_numbers.h"

#include <algorithm>

#include "integration/full_gain.h"
#include "integration/motion_energies.h"
#include "integration/newmark_steps.h"
#include "sparse/dense_lines.h"
#include "sparse/largest.h"
#include "sparse/projection_kernels.h"
#include "unit/random_matrix.h"

namespace {

using Vector = std::vector<double>;
using quarn::test::randomVector;

void append(Vector& all, const Vector& more) { all.insert(all.end(), more.begin(), more.end()); }

struct State {
  explicit State(int n) : u(randomVector(n, 1)), v(randomVector(n, 2)), a(randomVector(n, 3)), f(u.size()) {}
  Vector u;
  Vector v;
  Vector a;
  Vector f;
  void appendTo(Vector& all) const {
    for (const Vector* x : {&u, &v, &a, &f}) append(all, *x);
  }
};

void newmark(Vector& all, int n) {
  const quarn::NewmarkCoefficients k{0.01, 2.5e-5, 0.005, 200.0, 4.0e4};
  const Vector r = randomVector(3 * n, 4);
  const Vector load = randomVector(12, 5);
  const Vector gain = randomVector(n, 6);
  const Vector stiffness = randomVector(n, 7);
  const Vector damping = randomVector(n, 8);
  State apart(n);
  quarn::newmarkPredict(apart.u.data(), apart.v.data(), apart.a.data(), n, k);
  quarn::newmarkLoad(apart.f.data(), r.data(), n, load.data(), n, 3);
  quarn::newmarkCorrect(apart.u.data(), apart.v.data(), apart.a.data(), apart.f.data(), gain.data(), n, k);
  apart.appendTo(all);
  const Vector square = randomVector(n * n, 9);
  quarn::newmarkCorrectFull(apart.u.data(), apart.v.data(), apart.a.data(), apart.f.data(), square.data(), n, k);
  apart.appendTo(all);
  for (int kind = 0; kind < 3; ++kind) {
    const quarn::DiagonalForces forces{kind > 0 ? stiffness.data() : nullptr, 0.25, kind > 1 ? damping.data() : nullptr};
    State x(n);
    State copy(n);
    quarn::newmarkBegin({x.u.data(), x.v.data(), x.a.data(), n}, copy.u.data(), copy.v.data(), copy.a.data(), x.f.data(), r.data(),
                        load.data(), 1, forces, k);
    x.appendTo(all);
    copy.appendTo(all);
    quarn::newmarkNext({x.u.data(), x.v.data(), x.a.data(), n}, x.f.data(), gain.data(), r.data(), load.data(), 1, forces, k,
                       copy.u.data());
    x.appendTo(all);
    copy.appendTo(all);
    for (int nb = 1; nb < 4; nb += 2) {
      Vector saved(x.u.size());
      double* const saves[4] = {nullptr, nullptr, saved.data(), nullptr};
      quarn::newmarkSteps({x.u.data(), x.v.data(), x.a.data(), n}, r.data(), gain.data(), {load.data(), 3, nb, 4, saves}, forces, k);
      x.appendTo(all);
      append(all, saved);
    }
  }
}

void energies(Vector& all, int n) {
  const auto modes = static_cast<std::size_t>(n);
  const std::size_t columns = 11;
  const Vector k = randomVector(n, 21);
  const Vector c = randomVector(n, 22);
  const Vector start = randomVector(2 * n, 23);
  const Vector q = randomVector(11 * n, 24);
  const Vector directions = randomVector(5 * n, 25);
  const Vector values = randomVector(55, 26);
  Vector e(4 * columns);
  Vector v(q.size());
  Vector a(q.size());
  Vector work(quarn::motionEnergiesWork(modes, 2, 3));
  quarn::motionEnergies({modes, k.data(), c.data(), 0.05, 0.5, start.data(), start.data() + n}, q.data(), columns,
                        {2, directions.data(), values.data()}, {3, directions.data() + 2 * modes, values.data() + 2 * columns},
                        {e.data(), v.data(), a.data()}, work.data());
  for (const Vector* x : {&e, &v, &a}) append(all, *x);
}

void projections(Vector& all, int n) {
  const quarn::test::Lines m = quarn::test::randomLines(n, n, 20, 11);
  const std::size_t cols = 7;
  const auto lines = static_cast<std::size_t>(n);
  const Vector re = randomVector(n * static_cast<int>(cols), 12);
  const Vector im = randomVector(n * static_cast<int>(cols), 13);
  const quarn::DenseBase base{re.data(), im.data(), lines, cols};
  Vector out(2 * cols * cols);
  Vector work(quarn::bilinearWork(cols, cols));
  quarn::bilinearForms(out.data(), out.data() + cols * cols, base, base, {m.ir.data(), m.jc.data(), m.pr.data()}, lines, work.data());
  append(all, out);
}

void denseLines(Vector& all, int n) {
  for (int rows = 1; rows < 7; ++rows) {
    const Vector pr = randomVector(rows * n, 15);
    const Vector u = randomVector(n, 16);
    const Vector v = randomVector(n, 17);
    Vector y(static_cast<std::size_t>(3 * rows));
    quarn::denseSums(rows, n, pr.data(), u.data(), y.data());
    quarn::denseSumsOfTwo(rows, n, pr.data(), u.data(), y.data() + rows, v.data(), y.data() + 2 * rows);
    append(all, y);
    std::vector<int> starts{0};
    for (int i = 1; i <= rows; ++i) starts.push_back(i * n);
    Vector sum = u;
    quarn::addDenseRows(rows, n, starts.data(), pr.data(), y.data(), sum.data());
    append(all, sum);
  }
}

void indices(Vector& all, int n) {
  quarn::test::Lines m = quarn::test::randomLines(n, n, 9, 14);
  for (int count = 0; count <= n; count += 1 + count / 3) all.push_back(quarn::largestOf(m.ir.data(), std::min(count, m.jc[n])));
  m.ir[static_cast<std::size_t>(m.jc[n]) / 2] = -1;
  all.push_back(quarn::largestOf(m.ir.data(), m.jc[n]));
}

}  // namespace

std::vector<double> KERNEL_NUMBERS(int n) {
  Vector all;
  newmark(all, n);
  energies(all, n);
  if (n > 0) projections(all, n);
  if (n > 0) denseLines(all, n);
  if (n > 0) indices(all, n);
  return all;
}
