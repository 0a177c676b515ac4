#include "nonlinear/scatter.h"

#include <algorithm>
#include <cstring>

#include "numbers/ranges.h"
#include "sparse/dense_lines.h"
#include "sparse/line_runs.h"
#include "sparse/mt_kernels.h"
#include "sparse/mt_products.h"

namespace quarn {

namespace {

int entriesOf(const SparseView& m) { return m.jc[m.rows] - m.jc[0]; }

bool sameLines(const SparseView& a, const SparseView& b) {
  if (!b.pr || !b.sparse() || b.trans != 1 || a.rows != b.rows) return false;
  const auto entries = static_cast<std::size_t>(a.jc[a.rows]);
  return std::equal(a.jc, a.jc + a.rows + 1, b.jc) && std::equal(a.ir, a.ir + entries, b.ir) &&
         std::memcmp(a.pr, b.pr, entries * sizeof(double)) == 0;
}

bool columnsDistinct(const SparseView& b) {
  double* marks = host::zeros(static_cast<std::size_t>(std::max(b.cols, 0)));
  const bool yes = distinct(entriesOf(b), b.ir + b.jc[0], marks);
  mxFree(marks);
  return yes;
}

}  // namespace

void Scatter::plan(const SparseView& b, const SparseView* c, host::Doubles r, host::Doubles snl) {
  way = snl && b.pr ? Way::sums : Way::none;
  work = nullptr;
  columns = b.cols;
  values = b.pr;
  if (way == Way::none || b.trans != 1) return;
  const bool apart = !overlap(r.data, r.count, snl.data, snl.count) && !overlap(r.data, r.count, b.pr, b.prLen);
  if (!b.sparse()) {
    if (!apart) return;
    way = Way::row;
    first = 0;
    length = columns;
    return;
  }
  if (apart && b.rows > 0) way = directWay(b);
  if (direct()) {
    const bool full = way == Way::line || way == Way::block;
    if (full && c && sameLines(b, *c) && !overlap(r.data, r.count, c->pr, c->prLen)) values = c->pr;
    if (way == Way::first || way == Way::line) values += b.jc[0];
    return;
  }
  work = host::zeros(static_cast<std::size_t>(std::max(columns, 0)));
  if (b.rows > 0 && 8LL * entriesOf(b) <= columns) way = Way::touched;
}

/// The way of lines that need no work vector; sums for all others.
Scatter::Way Scatter::directWay(const SparseView& b) {
  const bool firstAlone = b.jc[1] == b.jc[b.rows];
  if (firstAlone && entriesOf(b) == 1) {
    first = b.ir[b.jc[0]];
    return Way::first;
  }
  if (isBlock({b.rows, b.ir, b.jc, b.pr}, &first, &length)) return firstAlone ? Way::line : Way::block;
  return singleEntries(b.rows, b.jc) && columnsDistinct(b) ? Way::singles : Way::sums;
}

void Scatter::addDirectly(const SparseView& b, const double* snl, double* r) const {
  switch (way) {
    case Way::first:
      addFirst(snl[0], r);
      break;
    case Way::singles:
      scatterSingles(b.rows, b.ir, b.jc, b.pr, snl, r);
      break;
    case Way::line:
      if (snl[0] != 0.0) addDenseRow(length, values, snl[0], r + first);
      break;
    default:
      addDenseRows(b.rows, length, b.jc, values, snl, r + first);
  }
}

/// Places that no line reaches gain 0, which matters to a negative zero alone.
void Scatter::addLines(const SparseView& b, const double* snl, double* r, int begunAtZero) {
  if (way == Way::none) return;
  const bool noNegativeZeros = columns <= begunAtZero;
  if (direct()) {
    addDirectly(b, snl, r);
    for (int j = 0; j < columns && !noNegativeZeros; ++j) r[j] += 0.0;
  } else if (way == Way::touched && noNegativeZeros) {
    addScatteredTouched(b.rows, b.ir, b.jc, b.pr, snl, r, work);
  } else {
    if (way == Way::touched) way = Way::sums;  // which leaves its sums in the work vector
    const int dims[3] = {b.rows, b.cols, b.trans};
    Add_Mt_ub(dims, b.ir, b.jc, b.pr, snl, r, work);
  }
}

}  // namespace quarn
