#include "gateway/structures/nl_structures.h"

#include "gateway/structures/nl_builtin.h"
#include "gateway/structures/nl_callback.h"
#include "gateway/structures/nl_element.h"
#include "gateway/structures/nl_observe.h"

namespace quarn {

namespace {

void checkLaw(const NlCall& call, const NlElement& e, NlLaw law) {
  switch (law) {
    case NlLaw::functionHandle:
      return checkHandleLaw(call, e);
    case NlLaw::callable:
    case NlLaw::hapsel:
      return checkCallableLaw(call, e);
    case NlLaw::rotcenter:
      return checkRotCenter(call, e);
    case NlLaw::mocirc2:
      return checkMocirc2(call, e);
    case NlLaw::nothing:
      return;
  }
}

void addLaw(const NlCall& call, const NlElement& e, NlLaw law) {
  switch (law) {
    case NlLaw::functionHandle:
      return addHandleLaw(call, e);
    case NlLaw::callable:
      return addCallableLaw(call, e);
    case NlLaw::hapsel:
      return addHapselLaw(call, e);
    case NlLaw::rotcenter:
      return addRotCenter(call, e);
    case NlLaw::mocirc2:
      return runMocirc2(call, e);
    case NlLaw::nothing:
      return;
  }
}

}  // namespace

int checkNlStructures(const ROr& ctx, host::Doubles r, const mxArray* NL, int nrhs, const mxArray** prhs) {
  const NlCall call{ctx, r, nrhs, prhs};
  const int listRows = host::rows(NL);
  for (int j = 0; j < listRows; ++j) {
    const NlElement e = nlElement(NL, listRows, j);
    if (!e.data) continue;
    const NlLaw law = nlLaw(e);
    checkObservation(call, e);
    checkLaw(call, e, law);
    if (callsBack(law)) return j + 1;
  }
  return listRows;
}

void addNlStructures(const ROr& ctx, host::Doubles r, const mxArray* NL, int nrhs, const mxArray** prhs, int checked) {
  const NlCall call{ctx, r, nrhs, prhs};
  const int listRows = host::rows(NL);
  for (int j = 0; j < host::rows(NL); ++j) {  // a MATLAB function may have changed the list
    const NlElement e = nlElement(NL, listRows, j);
    if (!e.data) continue;
    const NlLaw law = nlLaw(e);
    if (j >= checked) checkLaw(call, e, law);
    observe(call, e);
    addLaw(call, e, law);
  }
}

}  // namespace quarn
