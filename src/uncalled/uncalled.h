// What no command calls: parts of the module's interface in C++ that are kept for debugging and for code that links with the objects. Only
// the unit tests call them, the linker drops them from the module, and nothing outside this folder includes this header.
#pragma once

#include "nonlinear/nl_inout.h"
#include "sparse/sparse_view.h"

namespace quarn {

/// Calls the host's "drawnow", then "pause" with 1e-5 s, so that figures are drawn.
void doFlush();

/// Prints "Emptying quarn stack\n" and frees every registered handle, as "chandleclear" without an index does.
void emptyStack();

/// View of a as sparseView gives it, in two small arrays of the caller: ptrs = {ir, jc, pr}, dims = {rows, cols, trans}. Where there is no
/// "pr", rows and cols keep what the caller had there.
void korv_mkl_get_sparse(const mxArray* a, void** ptrs, int* dims);

/// Data of pmatDoubles.
double* pmatGetPr(const mxArray* a);

/// Checks and adds one term of a matrix cell, see KorvTerm; "residual" checks all terms before it adds the first. An unknown code is
/// printed, then "Not a supported residual" is raised.
void KorvResidual(int code, ROr c, const mxArray* K, host::Doubles r);

/// A law without a code in the table of laws: passes the stored state of each pair (observed value, state) on as its force.
void FuFric(chandleNl_inout* h, ROr ro);
/// Refuses what the law would read or write outside the arrays of the handle.
void checkFric(const chandleNl_inout& h, const ROr& ro);

}  // namespace quarn
