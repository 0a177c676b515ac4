#include "gateway/nl_builtin.h"
#include "host/errors.h"
#include "sparse/blas.h"
#include "sparse/line_checks.h"

namespace quarn {

namespace {

SparseView readColumns(const NlCall& call, const NlElement& e) {
  const SparseView v = sparseView(e.needed("cta"), "the element's cta");
  if (!v.pr || v.rows <= 0) return {};
  if (!v.sparse()) host::refuse("NL{%d,3}.cta must be a sparse matrix structure, got %s", e.row + 1, host::describe(e.field("cta")).text);
  if (e.row >= v.lines()) host::refuse("NL{%d,3}.cta has no column %d, it has %d", e.row + 1, e.row + 1, v.lines());
  checkLines(v, e.row + 1, call.ctx.uLen, "the element's cta", "u");
  return v;
}

}  // namespace

void checkMocirc2(const NlCall& call, const NlElement& e) { readColumns(call, e); }

void runMocirc2(const NlCall& call, const NlElement& e) {
  const SparseView v = readColumns(call, e);
  if (!v.pr) return;
  const int first = v.jc[e.row];
  const int entries = v.jc[e.row + 1] - first;
  for (int k = 0; k < (v.rows - 1) / 2 + 1; ++k) {
    static_cast<void>(cblas_ddoti(entries, v.pr + first, v.ir + first, call.ctx.u));
    static_cast<void>(cblas_ddoti(entries, v.pr + first, v.ir + first, call.ctx.u));
  }
}

}  // namespace quarn
