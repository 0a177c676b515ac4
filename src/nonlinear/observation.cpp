#include "nonlinear/observation.h"

#include <algorithm>

#include "sparse/dense_lines.h"
#include "sparse/line_runs.h"
#include "sparse/mt_kernels.h"
#include "sparse/mt_products.h"

namespace quarn {

namespace {

StoredLines linesOf(const SparseView& c) { return {c.rows, c.ir, c.jc, c.pr}; }

void observeProduct(const SparseView& c, const double* x, double* page, int length) {
  page[0] = 0.0;
  if (length > 1) std::fill(page + 1, page + length, 0.0);
  if (!c.pr) return;
  const int dims[3] = {c.rows, c.cols, c.trans};
  Prod_Mt_ub(dims, c.ir, c.jc, c.pr, x, page);
}

}  // namespace

void Observation::plan(const SparseView& c, const Pages& pages, bool apart, bool pagesOverlap) {
  way = Way::product;
  runs = nullptr;
  if (apart && c.pr && pages.length > 0 && c.rows == pages.length) {
    if (c.sparse() && c.trans == 1) planLines(c);
    if (!c.sparse() && c.rows == 1 && c.cols > 0) {  // a full matrix of one row is a full line without indices
      way = Way::block;
      values = c.pr;
      first = 0;
      length = c.cols;
    }
  }
  together = pages.unl && pages.vnl && !pagesOverlap;
}

void Observation::planLines(const SparseView& c) {
  if (singleEntries(c.rows, c.jc)) {
    const bool firstAlone = c.jc[1] == c.jc[0] + 1 && c.jc[c.rows] == c.jc[1];
    way = firstAlone ? Way::first : Way::singles;
  } else {
    runs = static_cast<int*>(mxCalloc(static_cast<std::size_t>(c.rows), sizeof(int)));
    if (findRuns(linesOf(c), runs)) {
      way = runs[0] == c.rows ? Way::block : Way::runs;
    } else {
      mxFree(runs);
      runs = nullptr;
    }
  }
  if (way != Way::first && way != Way::block) return;
  values = c.pr + c.jc[0];
  first = c.ir[c.jc[0]];
  length = c.jc[1] - c.jc[0];
}

void Observation::observeBlock(const Pages& pages, const double* u, const double* v) const {
  if (together) {
    denseSumsOfTwo(pages.length, length, values, v + first, pages.vnl, u + first, pages.unl);
  } else {
    if (pages.vnl) denseSums(pages.length, length, values, v + first, pages.vnl);
    if (pages.unl) denseSums(pages.length, length, values, u + first, pages.unl);
  }
}

void Observation::observeLines(const SparseView& c, const Pages& pages, const double* u, const double* v) const {
  const auto each = [&](const auto& observe) {
    if (pages.vnl) observe(v, pages.vnl);
    if (pages.unl) observe(u, pages.unl);
  };
  if (way == Way::singles) {
    each([&](const double* x, double* page) { gatherSingles(pages.length, c.ir, c.jc, c.pr, x, page); });
  } else if (way == Way::runs && together) {
    sumLinesOfTwo(linesOf(c), runs, v, pages.vnl, u, pages.unl);
  } else if (way == Way::runs) {
    each([&](const double* x, double* page) { sumLines(linesOf(c), runs, x, page); });
  } else {
    each([&](const double* x, double* page) { observeProduct(c, x, page, pages.length); });
  }
}

}  // namespace quarn
