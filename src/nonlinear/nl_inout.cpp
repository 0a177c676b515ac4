#include "nonlinear/nl_inout.h"

#include <algorithm>
#include <cstring>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "nonlinear/laws.h"
#include "nonlinear/state_laws.h"
#include "nonlinear/user_law.h"
#include "numbers/ranges.h"
#include "sparse/dense_lines.h"
#include "sparse/line_runs.h"
#include "sparse/mt_kernels.h"
#include "sparse/mt_products.h"

namespace quarn {

namespace {

int valuesOf(std::size_t n, const char* name) {
  if (n > 0x7fffffff) host::refuse("%s holds %zu values, expected fewer than 2^31", name, n);
  return static_cast<int>(n);
}

bool sameLines(const SparseView& a, const SparseView& b) {
  if (!b.pr || !b.sparse() || b.trans != 1 || a.rows != b.rows) return false;
  const std::size_t entries = static_cast<std::size_t>(a.jc[a.rows]);
  return std::equal(a.jc, a.jc + a.rows + 1, b.jc) && std::equal(a.ir, a.ir + entries, b.ir) &&
         std::memcmp(a.pr, b.pr, entries * sizeof(double)) == 0;
}

}  // namespace

void chandleNl_inout::initCpt() {
  b = sparseView(host::field(val, "b"), "b");
  c = sparseView(host::field(val, "c"), "c");
  if (b.throughObject || c.throughObject) verified = false;
  readStates();
  readOptions();
}

void chandleNl_inout::readStates() {
  const mxArray* unlArray = host::field(val, "unl");
  const host::Doubles u = pmatDoubles(unlArray, "unl");
  unl = u.data;
  unlTotal = u.count;
  if (!unlArray) {
    unlLen = 0;
    unlSlices = 0;
  } else if (mxGetNumberOfDimensions(unlArray) < 3) {
    unlLen = valuesOf(host::count(unlArray), "unl");
    unlSlices = 1;
  } else {
    const mwSize* dims = mxGetDimensions(unlArray);
    unlLen = valuesOf(static_cast<std::size_t>(dims[0]) * static_cast<std::size_t>(dims[1]), "unl");
    unlSlices = valuesOf(static_cast<std::size_t>(dims[2]), "unl");
  }
  if (!unl) unlLen = 0;  // extents without values: no pages, or an object whose buffer is null
  const host::Doubles s = pmatDoubles(host::field(val, "snl"), "snl");
  snl = s ? s.data : unl;
  snlTotal = s ? s.count : unlTotal;
  const host::Doubles w = pmatDoubles(host::field(val, "vnl"), "vnl");
  vnl = w.data;
  vnlTotal = w.count;
}

void chandleNl_inout::readOptions() {
  const host::Doubles o = host::doubles(host::field(val, "opt"), "opt");
  opt = o.data;
  optLen = valuesOf(o.count, "opt");
  if (!opt) host::fail(fixed::noOptions);
  const mxArray* ioptArray = host::field(val, "iopt");
  if (ioptArray && !mxIsInt32(ioptArray)) host::fail(fixed::offsetsNotInt32);
  const host::Ints io = host::int32s(ioptArray, "iopt");
  iopt = io.data;
  ioptLen = valuesOf(io.count, "iopt");

  const LawRow* row = findLaw(opt[0]);
  if (!row) host::fail(fixed::unknownLaw);
  if (row->law == FuPower && optLen < 3) host::fail(fixed::powerParameters);
  if (row->needsPages && unlSlices == 1) host::fail(fixed::noPages);
  law = row->law;
  check = row->check;
  tableAscends = false;
  subStepsChecked = false;
  if (law == FuUser) bindUserLaw(this);
}

/// Observed values: a page of zeros, then the product of the observation matrix.
void chandleNl_inout::observe(const double* x, double* page) const {
  page[0] = 0.0;
  if (unlLen > 1) std::fill(page + 1, page + unlLen, 0.0);
  if (!c.pr) return;
  const int dims[3] = {c.rows, c.cols, c.trans};
  Prod_Mt_ub(dims, c.ir, c.jc, c.pr, x, page);
}

void chandleNl_inout::observeBlock(const ROr& ro) const {
  if (together) {
    denseSumsOfTwo(unlLen, cLength, cRows, ro.v + cFirst, vnl, ro.u + cFirst, unl);
  } else {
    if (vnl) denseSums(unlLen, cLength, cRows, ro.v + cFirst, vnl);
    if (unl) denseSums(unlLen, cLength, cRows, ro.u + cFirst, unl);
  }
}

void chandleNl_inout::observeBoth(const ROr& ro) const {
  const StoredLines lines{c.rows, c.ir, c.jc, c.pr};
  if (cSingles) {
    if (vnl) gatherSingles(unlLen, c.ir, c.jc, c.pr, ro.v, vnl);
    if (unl) gatherSingles(unlLen, c.ir, c.jc, c.pr, ro.u, unl);
  } else if (together) {
    sumLinesOfTwo(lines, cRuns, ro.v, vnl, ro.u, unl);
  } else if (cRuns) {
    if (vnl) sumLines(lines, cRuns, ro.v, vnl);
    if (unl) sumLines(lines, cRuns, ro.u, unl);
  } else {
    if (vnl) observe(ro.v, vnl);
    if (unl) observe(ro.u, unl);
  }
}

/// Through b, without a work vector where its lines are full. Places that no line reaches gain 0, which matters to a negative zero alone.
void chandleNl_inout::addForces(const ROr& ro, double* r) {
  if (bBlock) {
    if (bOne) {
      if (snl[0] != 0.0) addDenseRow(bLength, bRows, snl[0], r + bFirst);
    } else {
      addDenseRows(b.rows, bLength, b.jc, bRows, snl, r + bFirst);
    }
    if (b.cols <= ro.begunAtZero) return;
    for (int j = 0; j < bFirst; ++j) r[j] += 0.0;
    for (int j = bFirst + bLength; j < b.cols; ++j) r[j] += 0.0;
    return;
  }
  if (bRow && b.cols <= ro.begunAtZero) {
    addDenseRow(b.cols, b.pr, snl[0], r);
    return;
  }
  if (bSparse && b.cols <= ro.begunAtZero) {
    if (bSingles) {
      scatterSingles(b.rows, b.ir, b.jc, b.pr, snl, r, bWork);
    } else {
      addScatteredTouched(b.rows, b.ir, b.jc, b.pr, snl, r, bWork);
    }
    return;
  }
  bSparse = false;
  const int dims[3] = {b.rows, b.cols, b.trans};
  Add_Mt_ub(dims, b.ir, b.jc, b.pr, snl, r, bWork);
}

void chandleNl_inout::Residual(ROr ro, double* r) {
  if (cLength > 0) {
    observeBlock(ro);
  } else {
    observeBoth(ro);
  }
  law(this, ro);
  if (snl && b.pr) addForces(ro, r);
}

void chandleNl_inout::EndStep() {
  if (unlSlices <= 1) return;
  // The source begins twice the number of pages into the array, not two pages.
  const long long source = 2LL * unlSlices;
  const auto commit = [this, source](double* data, std::size_t total) {
    if (static_cast<unsigned long long>(source) < total) {
      const auto n = std::min<unsigned long long>(static_cast<unsigned long long>(unlLen), total - static_cast<unsigned long long>(source));
      std::memmove(data, data + source, n * sizeof(double));
    }
  };
  if (unl) commit(unl, unlTotal);
  if (vnl) commit(vnl, vnlTotal);
}

std::int64_t chandleNl_inout::stateEnd() const { return ioptLen >= 4 ? static_cast<std::int64_t>(iopt[1]) + iopt[3] : 0; }

/// A full matrix of one row is a full line without indices.
bool chandleNl_inout::planFullRow() {
  const bool row = pagesApart && cApart && c.pr && !c.sparse() && c.rows == 1 && unlLen == 1;
  if (!row) return false;
  cSingles = false;
  cRuns = nullptr;
  cLength = c.cols;
  cRows = c.pr;
  cFirst = 0;
  together = unl && vnl && !overlap(unl, unlTotal, vnl, vnlTotal);
  return cLength > 0;
}

/// Pages that share no memory with the state or with c are assigned, line after line.
void chandleNl_inout::planObservation() {
  if (planFullRow()) return;
  const bool assigned = pagesApart && c.pr && c.sparse() && c.trans == 1 && unlLen > 0 && c.rows == unlLen && cApart;
  cSingles = assigned && singleEntries(c.rows, c.jc);
  cRuns = nullptr;
  cLength = 0;
  together = false;
  if (!assigned || cSingles) return;
  cRuns = static_cast<int*>(mxCalloc(static_cast<std::size_t>(c.rows), sizeof(int)));
  if (!findRuns({c.rows, c.ir, c.jc, c.pr}, cRuns)) {
    mxFree(cRuns);
    cRuns = nullptr;
  }
  together = cRuns && unl && vnl && !overlap(unl, unlTotal, vnl, vnlTotal);
  if (!cRuns || cRuns[0] != c.rows) return;
  cLength = c.jc[1] - c.jc[0];
  cRows = c.pr + c.jc[0];
  cFirst = c.ir[c.jc[0]];
}

void chandleNl_inout::planCommand(host::Doubles r) {
  const bool scatters = snl && b.pr && b.sparse() && b.trans == 1;
  bBlock = scatters && isBlock({b.rows, b.ir, b.jc, b.pr}, &bFirst, &bLength) && !overlap(r.data, r.count, snl, snlTotal) &&
           !overlap(r.data, r.count, b.pr, b.prLen);
  bRows = bBlock && cApart && sameLines(b, c) && !overlap(r.data, r.count, c.pr, c.prLen) ? c.pr : b.pr;
  bOne = bBlock && b.rows == 1;
  bRow = snl && b.pr && !b.sparse() && b.trans == 1 && !overlap(r.data, r.count, snl, snlTotal) && !overlap(r.data, r.count, b.pr, b.prLen);
  if (bOne) bRows += b.jc[0];
  bWork = scatters && !bBlock ? static_cast<double*>(mxCalloc(static_cast<std::size_t>(std::max(b.cols, 1)), sizeof(double))) : nullptr;
  bSparse = bWork && b.rows > 0 && 8LL * (b.jc[b.rows] - b.jc[0]) <= b.cols;
  bSingles = bSparse && singleEntries(b.rows, b.jc) && distinct(b.jc[b.rows] - b.jc[0], b.ir + b.jc[0], bWork);
}

void chandleNl_inout::planTable(host::Doubles r) {
  tableAscends = (law == FuTable || law == Clima2) && unlLen > 0 && optApart &&
                 !overlap(r.data, r.count, opt, static_cast<std::size_t>(optLen)) && quarn::tableAscends(*this);
}

void chandleNl_inout::takeWork(host::Doubles r) {
  planTable(r);
  planObservation();
  planCommand(r);
}

}  // namespace quarn
