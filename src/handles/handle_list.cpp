#include "handles/handle_list.h"

#include <climits>

#include "base/fixed_errors.h"
#include "base/handle_walk.h"
#include "handles/handle_types.h"
#include "handles/hindex.h"
#include "host/arrays.h"
#include "host/errors.h"
#include "host/user_code.h"
#include "numbers/convert.h"

namespace quarn {

namespace {

chandle* fromElement(const mxArray* list, std::size_t i) {
  mxArray* element = host::cell(list, i);
  const mxArray* type = host::field(element, "type");
  if (!type) {
    host::refuse("expected a struct with a field \"type\", got %s%s", host::describe(element).text,
                 element && mxIsStruct(element) ? " without one" : "");
  }
  int ok = 0;
  const int code = toInt(host::number(type, "field \"type\""));
  chandle* h = chandleInitByType(code, &ok);
  h->set_val(code, element);
  return h;
}

/// Registry index of element i of a "chandle" object.
int keyOf(const mxArray* list, mxArray* place, std::size_t i) {
  *mxGetPr(place) = static_cast<double>(i + 1);
  mxArray* in[2] = {const_cast<mxArray*>(list), place};
  mxArray* index = nullptr;
  host::callHost(1, &index, 2, in, "remi");
  if (!index) host::fail(fixed::noSuchHandle);
  const int key = toInt(host::number(index, "the index that \"remi\" returned"));
  mxDestroyArray(index);
  return key;
}

chandle* fromRegistry(int key) {
  chandle* h = cIndex.getStack(key);
  if (!h) host::fail(fixed::noSuchHandle);
  return h;
}

void gatherElements(chandle** out, const mxArray* list, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    nameElement(static_cast<int>(i) + 1);
    out[i] = fromElement(list, i);
    out[i]->initCpt();
  }
}

void gatherOne(chandle** out, int key, std::size_t i) {
  nameElement(static_cast<int>(i) + 1);
  out[i] = fromRegistry(key);
  if (out[i]->inUse) ++disturbedUses;
  out[i]->inUse = false;
  out[i]->initCpt();
}

/// Index, handle and set-up of each element in turn. "remi" is a method of the user's, which may free handles that were found before: where
/// one has left the registry meanwhile, all are looked up once more by their indices.
void gatherRegistered(chandle** out, const mxArray* list, std::size_t n) {
  auto* keys = static_cast<int*>(mxCalloc(n + 1, sizeof(int)));
  mxArray* place = mxCreateDoubleScalar(-1.0);
  const std::uint64_t released = cIndex.released();
  {
    const host::UserCode running;
    for (std::size_t i = 0; i < n; ++i) {
      nameElement(static_cast<int>(i) + 1);
      keys[i] = keyOf(list, place, i);
      gatherOne(out, keys[i], i);
    }
  }
  mxDestroyArray(place);
  for (std::size_t i = 0; i < n && cIndex.released() != released; ++i) gatherOne(out, keys[i], i);
  mxFree(keys);
}

}  // namespace

void addResiduals(chandle** list, int n, const ROr& c, host::Doubles r) {
  checkAll(list, n, 1, c, r.count);
  takeAllWork(list, n, r);
  setInUse(list, n, true);
  forLive(list, n, [&](chandle& h, int) { h.Residual(c, r.data); });
  setInUse(list, n, false);
}

chandle** newHandleList(const mxArray* list) {
  const std::size_t n = host::count(list);
  if (n > INT_MAX) host::refuse("a handle list may have up to %d elements, got %zu", INT_MAX, n);
  return static_cast<chandle**>(mxCalloc(n + 1, sizeof(chandle*)));
}

int fillVectP(chandle** out, const mxArray* list) {
  const std::size_t n = host::count(list);
  if (mxIsCell(list)) {
    gatherElements(out, list, n);
  } else {
    gatherRegistered(out, list, n);
  }
  nameElement(0);
  return static_cast<int>(n);
}

}  // namespace quarn
