#include "integration/sparse_handles.h"

#include <algorithm>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "numbers/ranges.h"
#include "sparse/dense_lines.h"
#include "sparse/line_checks.h"
#include "sparse/line_runs.h"
#include "sparse/line_sums.h"
#include "sparse/sp_tbb.h"

namespace quarn {

namespace {

/// Lines up to which a product stays on one thread, whatever it holds.
constexpr int kLines = 1000;
/// Full lines whose sums are formed before they are added.
constexpr int kSumsAtOnce = 64;

}  // namespace

void addScaledLines(const SparseView& m, const double* x, double factor, int n, double* r) {
  for (int j = 0; j < n; ++j) {
    const int k0 = m.jc[j];
    r[j] += lineSum(m.jc[j + 1] - k0, m.pr + k0, m.ir + k0, x) * factor;
  }
}

void chandleSparse::readView() {
  m = sparseView(val, name());
  if (m.throughObject) verified = false;
  blockLength = 0;
}

void chandleSparse::markDiagonal() {
  if (!m.ir) return;
  checkLength(m.jcLen, static_cast<long long>(m.cols) + 1, "\"jc\"", "one more than the matrix has columns");
  if (m.jc && m.cols >= 0 && m.jc[m.cols] == m.cols) m.ir[0] = -1;
}

void chandleSparse::checkSizes(const ROr& ctx, std::size_t rLen) {
  factor.checkTaken(name());
  checkTerms(ctx, rLen);
}

void chandleSparse::checkTerm(std::int32_t N, std::size_t vectorLen, std::size_t rLen, const char* vectorName) {
  checkLength(rLen, N, "the residual (in an integration, the part of uva after the copies of u, v and a)", "one for each row of u");
  checkLength(vectorLen, N, vectorName, "one for each row of u");
  if (diagonal()) {
    checkLength(m.prLen, N, name(), "one diagonal entry for each row of u");
    return;
  }
  if (!verified || verifiedLines != N) {
    checkLinePointers(m, N, name());
    largest = largestIndex(m, N, name());
    verified = true;
    verifiedLines = N;
  }
  checkGather(largest, vectorLen, name(), vectorName);
}

/// Full lines, those of a coupled model in modal coordinates, are recognised once for all steps.
void chandleSparse::takeWork(host::Doubles r) {
  blockLength = 0;
  const int n = verifiedLines;
  if (!m.ir || !m.pr || diagonal() || n <= 0 || n > kLines) return;
  int length = 0;
  if (!isBlock({n, m.ir, m.jc, m.pr}, &blockFirst, &length) || m.jc[n] - m.jc[0] != n * length) return;
  if (overlap(r.data, r.count, operand.data, operand.count) || overlap(r.data, r.count, m.pr, m.prLen)) return;
  blockLength = length;
}

template <class Term>
void chandleSparse::addBlock(const double* x, std::int32_t N, double* r, const Term& term) const {
  const double* rows = m.pr + m.jc[0];
  double sums[kSumsAtOnce];
  for (int first = 0; first < N; first += kSumsAtOnce) {
    const int n = std::min(kSumsAtOnce, N - first);
    denseSums(n, blockLength, rows + static_cast<std::ptrdiff_t>(first) * blockLength, x + blockFirst, sums);
    for (int i = 0; i < n; ++i) r[first + i] += term(sums[i]);
  }
}

void chandleSparse::addProduct(const double* x, std::int32_t N, double* r) const {
  if (blockLength == 0) {
    SparseMatVec(r, x, m.pr, m.ir, m.jc, N);
    return;
  }
  addBlock(x, N, r, [](double sum) { return sum; });
}

void chandleSparse::addTimes(double f, const double* x, std::int32_t N, double* r) const {
  if (blockLength == 0) {
    addScaledLines(m, x, f, N, r);
    return;
  }
  addBlock(x, N, r, [f](double sum) { return sum * f; });
}

void chandleSparseStiffness::initCpt() {
  readView();
  factor.read(val, name());
  markDiagonal();
}

void chandleSparseStiffness::checkTerms(const ROr& ctx, std::size_t rLen) {
  if (!m.ir || !m.pr) return;
  checkTerm(ctx.N, ctx.uLen, rLen, "u");
  operand = {ctx.u, ctx.uLen};
  if (diagonal() || ctx.beta != 0.0) checkTerm(ctx.N, ctx.vLen, rLen, "v");
}

void chandleSparseStiffness::Residual(ROr c, double* r) {
  if (!m.ir || !m.pr) return;
  if (factor) {
    addChanging(c, factor.value(c.t), r);
    return;
  }
  if (diagonal()) {
    for (int i = 0; i < c.N; ++i) r[i] += m.pr[i] * (c.u[i] + c.beta * c.v[i]);
    return;
  }
  addProduct(c.u, c.N, r);
  if (c.beta != 0.0) addScaledLines(m, c.v, c.beta, c.N, r);
}

void chandleSparseStiffness::addChanging(const ROr& c, double f, double* r) const {
  if (diagonal()) {
    for (int i = 0; i < c.N; ++i) r[i] += f * (m.pr[i] * (c.u[i] + c.beta * c.v[i]));
    return;
  }
  addTimes(f, c.u, c.N, r);
  if (c.beta != 0.0) addTimes(f * c.beta, c.v, c.N, r);
}

void chandleSparseMass::initCpt() {
  readView();
  if (host::count(host::field(val, "factor")) > 0) {
    host::refuse("a mass matrix has no \"factor\" of time: the inertia is in the integrator's gain; stiffness and damping may have one");
  }
  if (!m.pr) host::fail(fixed::noRealPart);
  if (!m.ir) host::fail(fixed::notAMass);
  markDiagonal();
}

void chandleSparseMass::checkTerms(const ROr& ctx, std::size_t rLen) {
  if (!ctx.a) return;
  if (!m.ir && m.pr) host::fail(fixed::sparseOnly);
  if (!m.ir) return;
  checkTerm(ctx.N, ctx.aLen, rLen, "a");
  operand = {ctx.a, ctx.aLen};
  if (diagonal() || ctx.alpha != 0.0) checkTerm(ctx.N, ctx.vLen, rLen, "v");
}

void chandleSparseMass::Residual(ROr c, double* r) {
  if (!c.a || !m.ir) return;
  if (diagonal()) {
    for (int i = 0; i < c.N; ++i) r[i] += m.pr[i] * (c.a[i] + c.alpha * c.v[i]);
    return;
  }
  addProduct(c.a, c.N, r);
  if (c.alpha != 0.0) addScaledLines(m, c.v, c.alpha, c.N, r);
}

void chandleSparseDamping::initCpt() {
  readView();
  factor.read(val, name());
  if (m.jc && m.cols >= 0) {
    checkLength(m.jcLen, static_cast<long long>(m.cols) + 1, "\"jc\"", "one more than the matrix has columns");
    if (m.jc[m.cols] == 0) {
      m.ir = nullptr;
      m.jc = nullptr;
      m.pr = nullptr;
      return;
    }
  }
  markDiagonal();
}

void chandleSparseDamping::checkTerms(const ROr& ctx, std::size_t rLen) {
  if (!m.ir || !m.pr) return;
  checkTerm(ctx.N, ctx.vLen, rLen, "v");
  operand = {ctx.v, ctx.vLen};
}

void chandleSparseDamping::Residual(ROr c, double* r) {
  if (!m.ir || !m.pr) return;
  if (factor) {
    addChanging(c, factor.value(c.t), r);
    return;
  }
  if (diagonal()) {
    for (int i = 0; i < c.N; ++i) r[i] += m.pr[i] * c.v[i];
    return;
  }
  addProduct(c.v, c.N, r);
}

void chandleSparseDamping::addChanging(const ROr& c, double f, double* r) const {
  if (diagonal()) {
    for (int i = 0; i < c.N; ++i) r[i] += f * (m.pr[i] * c.v[i]);
    return;
  }
  addTimes(f, c.v, c.N, r);
}

}  // namespace quarn
