#include "gateway/newmark_command.h"

#include "base/fixed_errors.h"
#include "base/handle_walk.h"
#include "handles/handle_list.h"
#include "host/errors.h"
#include "integration/diag_newmark.h"

namespace quarn {

namespace {

chandleDiagNewmark* integratorOf(chandle** list, int n) {
  if (n < 1) host::refuse("the handle list is empty, expected the integrator first");
  if (!list[0] || list[0]->type != HandleType::newmark) {
    host::refuse("the first handle must be the integrator (type %d), got type %d", HandleType::newmark, list[0] ? list[0]->type : 0);
  }
  return static_cast<chandleDiagNewmark*>(list[0]);
}

}  // namespace

void commandDiagNewmark(int /*nlhs*/, mxArray* /*plhs*/[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 9) host::refuse("expected 9 inputs (command, list, model, u, v, a, opt, mem, out), got %d", nrhs);
  const ROr c = getROr(nrhs, prhs);
  const mxArray* elements = prhs[1];
  if (!mxIsCell(elements) && !host::isClass(elements, "chandle")) host::fail(fixed::notAHandleList);
  chandle** list = newHandleList(elements);
  const int n = fillVectP(list, elements);
  chandleDiagNewmark* integrator = integratorOf(list, n);
  chandle** forces = list + 1;
  integrator->initCb(c, prhs[2], prhs[7], prhs[8], forces, n - 1);
  if (integrator->steps() == 0) return;
  integrator->checkRun(c, forces, n - 1);
  setInUse(list, n, true);
  integrator->run(forces, n - 1, c);
  setInUse(list, n, false);
}

}  // namespace quarn
