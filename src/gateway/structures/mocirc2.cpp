#include "gateway/structures/nl_builtin.h"
#include "host/errors.h"
#include "sparse/blas.h"
#include "sparse/line_checks.h"

namespace quarn {

namespace {

/// The column of "cta" that has the element's row number, as the first line of a view; no other column is looked at.
SparseView readColumn(const NlCall& call, const NlElement& e) {
  const SparseView v = sparseView(e.needed("cta"), "the element's cta");
  if (!v.pr || v.rows <= 0) return {};
  if (!v.sparse()) host::refuse("NL{%d,3}.cta must be a sparse matrix structure, got %s", e.row + 1, host::describe(e.field("cta")).text);
  if (e.row >= v.lines()) host::refuse("NL{%d,3}.cta has no column %d, it has %d", e.row + 1, e.row + 1, v.lines());
  if (v.jcLen < static_cast<std::size_t>(e.row) + 2) checkLinePointers(v, e.row + 1, "the element's cta");
  SparseView column = v;
  column.jc += e.row;
  column.jcLen -= static_cast<std::size_t>(e.row);
  checkLines(column, 1, call.ctx.uLen, "the element's cta", "u");
  return column;
}

}  // namespace

void checkMocirc2(const NlCall& call, const NlElement& e) { readColumn(call, e); }

void runMocirc2(const NlCall& call, const NlElement& e) {
  const SparseView v = readColumn(call, e);
  if (!v.pr) return;
  const int first = v.jc[0];
  const int entries = v.jc[1] - first;
  // A pair of sums for every two rows of the matrix, all of them the same and seen by nobody: one pair stands for a billion.
  static_cast<void>(cblas_ddoti(entries, v.pr + first, v.ir + first, call.ctx.u));
  static_cast<void>(cblas_ddoti(entries, v.pr + first, v.ir + first, call.ctx.u));
}

}  // namespace quarn
