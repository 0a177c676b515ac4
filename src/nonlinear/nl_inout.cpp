#include "nonlinear/nl_inout.h"

#include <algorithm>
#include <cstring>

#include "host/errors.h"
#include "nonlinear/laws.h"
#include "sparse/mt_kernels.h"

namespace quarn {

namespace {

int valuesOf(std::size_t n, const char* name) {
  if (n > 0x7fffffff) host::refuse("%s holds %zu values, expected fewer than 2^31", name, n);
  return static_cast<int>(n);
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
  if (!opt) host::fail("KORV:quarn:empty", "ReportEB opt");
  const mxArray* ioptArray = host::field(val, "iopt");
  if (ioptArray && !mxIsInt32(ioptArray)) host::fail("KORV:quarn:conform", "iopt must be int32");
  const host::Ints io = host::int32s(ioptArray, "iopt");
  iopt = io.data;
  ioptLen = valuesOf(io.count, "iopt");

  const LawRow* row = findLaw(opt[0]);
  if (!row) host::fail("KORV:quarn:empty", "Unknown .opt(1) choice");
  if (row->law == FuPower && optLen < 3) host::fail("KORV:quarn:empty", "FuPower requires 3 parameters");
  if (row->needsPages && unlSlices == 1) host::fail("KORV:quarn:empty", "Incorrect unl");
  law = row->law;
  check = row->check;
}

/// Observed values: a page of zeros, then the product of the observation matrix.
void chandleNl_inout::observe(const double* x, double* page) const {
  page[0] = 0.0;
  if (unlLen > 1) std::fill(page + 1, page + unlLen, 0.0);
  if (!c.pr) return;
  const int dims[3] = {c.rows, c.cols, c.trans};
  Prod_Mt_ub(dims, c.ir, c.jc, c.pr, x, page);
}

void chandleNl_inout::Residual(ROr ro, double* r) {
  if (cPicks) {
    if (vnl) pick(unlLen, c.ir, c.jc, c.pr, ro.v, vnl);
    if (unl) pick(unlLen, c.ir, c.jc, c.pr, ro.u, unl);
  } else {
    if (vnl) observe(ro.v, vnl);
    if (unl) observe(ro.u, unl);
  }
  law(this, ro);
  if (!snl || !b.pr) return;
  if (bSparse && b.cols <= ro.sums) {
    if (bPicks) {
      spread(b.rows, b.ir, b.jc, b.pr, snl, r, bWork);
    } else {
      addScatteredTouched(b.rows, b.ir, b.jc, b.pr, snl, r, bWork);
    }
    return;
  }
  bSparse = false;
  const int dims[3] = {b.rows, b.cols, b.trans};
  Add_Mt_ub(dims, b.ir, b.jc, b.pr, snl, r, bWork);
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

void chandleNl_inout::takeWork() {
  const bool scatters = snl && b.pr && b.sparse() && b.trans == 1;
  bWork = scatters ? static_cast<double*>(mxCalloc(static_cast<std::size_t>(std::max(b.cols, 1)), sizeof(double))) : nullptr;
  bSparse = scatters && b.rows > 0 && 8LL * (b.jc[b.rows] - b.jc[0]) <= b.cols;
  bPicks = bSparse && picksOnly(b.rows, b.jc) && distinct(b.jc[b.rows] - b.jc[0], b.ir + b.jc[0], bWork);
  cPicks = pagesApart && c.pr && c.sparse() && c.trans == 1 && unlLen > 0 && c.rows == unlLen && picksOnly(c.rows, c.jc) &&
           !host::overlap(c.pr, c.prLen, unl, unlTotal) && !host::overlap(c.pr, c.prLen, vnl, vnlTotal);
}

}  // namespace quarn
