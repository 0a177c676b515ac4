#include "nonlinear/nl_inout.h"

#include <algorithm>
#include <cstring>

#include "base/fixed_errors.h"
#include "host/errors.h"
#include "nonlinear/laws.h"
#include "nonlinear/state_laws.h"
#include "nonlinear/user_law.h"
#include "numbers/ranges.h"

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
  cWritten = false;
  if (law == FuUser) bindUserLaw(this);
}

void chandleNl_inout::Residual(ROr ro, double* r) {
  observation.observe(c, {unl, vnl, unlLen}, ro.u, ro.v);
  law(this, ro);
  scatter.add(b, snl, r, ro.begunAtZero);
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

void chandleNl_inout::planTable(host::Doubles r) {
  tableAscends = (law == FuTable || law == Clima2) && unlLen > 0 && optApart &&
                 !overlap(r.data, r.count, opt, static_cast<std::size_t>(optLen)) && quarn::tableAscends(*this);
}

void chandleNl_inout::takeWork(host::Doubles r) {
  planTable(r);
  observation.plan(c, {unl, vnl, unlLen}, pagesApart && cApart, overlap(unl, unlTotal, vnl, vnlTotal));
  const bool observed = unl || vnl;  // without pages nobody has looked whether c is sound
  scatter.plan(b, observed && cApart && !cWritten ? &c : nullptr, r, {snl, snlTotal});
}

}  // namespace quarn
