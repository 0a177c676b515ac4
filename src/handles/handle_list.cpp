#include "handles/handle_list.h"

#include <climits>

#include "handles/handle_types.h"
#include "handles/hindex.h"
#include "host/arrays.h"
#include "host/convert.h"
#include "host/errors.h"

namespace quarn {

namespace {

chandle* fromElement(const mxArray* list, std::size_t i) {
  mxArray* element = host::cell(list, i);
  const mxArray* type = host::field(element, "type");
  if (!type) host::refuse("element %zu of the handle list must be a struct with a field \"type\", got %s", i + 1, host::describe(element).text);
  int ok = 0;
  chandle* h = chandleInitByType(host::toInt(host::number(type, "field \"type\"")), &ok);
  h->set_val(host::toInt(mxGetScalar(type)), element);
  return h;
}

chandle* fromRegistry(const mxArray* list, mxArray* place, std::size_t i) {
  *mxGetPr(place) = static_cast<double>(i + 1);
  mxArray* in[2] = {const_cast<mxArray*>(list), place};
  mxArray* index = nullptr;
  mexCallMATLAB(1, &index, 2, in, "remi");
  if (!index) host::fail("KORV:quarn:NonHandle", "Handle does not exist");
  const int key = host::toInt(host::number(index, "the index that \"remi\" returned"));
  mxDestroyArray(index);
  chandle* h = cIndex.getStack(key);
  if (!h) host::fail("KORV:quarn:NonHandle", "Handle does not exist");
  return h;
}

}  // namespace

chandle** newHandleList(const mxArray* list) {
  return static_cast<chandle**>(mxCalloc(host::count(list) + 1, sizeof(chandle*)));
}

int fillVectP(chandle** out, const mxArray* list) {
  const std::size_t n = host::count(list);
  if (n > INT_MAX) host::refuse("a handle list may have up to %d elements, got %zu", INT_MAX, n);
  const bool elements = mxIsCell(list);
  mxArray* place = elements ? nullptr : mxCreateDoubleScalar(-1.0);
  for (std::size_t i = 0; i < n; ++i) {
    out[i] = elements ? fromElement(list, i) : fromRegistry(list, place, i);
    out[i]->initCpt();
  }
  if (place) mxDestroyArray(place);
  return static_cast<int>(n);
}

}  // namespace quarn
