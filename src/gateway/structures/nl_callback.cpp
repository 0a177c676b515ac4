#include "gateway/structures/nl_callback.h"

#include <algorithm>

#include "host/errors.h"
#include "numbers/ranges.h"
#include "sparse/mt_products.h"

namespace quarn {

namespace {

constexpr int allArguments = 8;

void checkArguments(const NlCall& call, const NlElement& e) {
  if (call.nrhs < allArguments) {
    host::refuse("NL{%d,3} calls a function that is given all of r, model, u, v, a, opt, extra : 8 arguments expected, got %d", e.row + 1,
                 call.nrhs);
  }
}

/// Calls function with (head, element, r, model, u, v, a, opt, extra), without the head where it is null.
void callBack(const NlCall& call, const NlElement& e, int nlhs, mxArray** plhs, const char* function, const mxArray* head) {
  mxArray* in[allArguments + 1];
  int n = 0;
  if (head) in[n++] = const_cast<mxArray*>(head);
  in[n++] = const_cast<mxArray*>(e.data);
  for (int k = 1; k < allArguments; ++k) in[n++] = const_cast<mxArray*>(call.prhs[k]);
  host::callHost(nlhs, plhs, n, in, function);
}

void callWithoutResult(const NlCall& call, const NlElement& e, const char* function, const mxArray* head) {
  mxArray* out[1] = {nullptr};
  callBack(call, e, 0, out, function, head);
}

/// Values of a force array; refuses what is not a double array, naming where it came from.
host::Doubles forceValues(const mxArray* F, const NlElement& e, const char* origin) {
  if (!host::holdsDoubles(F)) {
    host::refuse("NL{%d,3} : %s must be a full real double array, got %s", e.row + 1, origin, host::describe(F).text);
  }
  return host::doubles(F, origin);
}

/// "b" of an element with an array of forces that are certain to be added.
void checkCommand(const NlCall& call, const NlElement& e) {
  const mxArray* b = e.field("b");
  if (!b || !e.field("unl")) return;
  const std::size_t forces = forceValues(e.force(), e, "its force array").count;
  if (!mxIsSparse(b)) checkAdd(sparseView(b, "the element's b"), forces, call.r.count, "the element's b");
}

bool stores(const NlCall& call, const NlElement& e) { return e.number("StoreFNL") != 0.0 && call.ctx.FNL; }

int storeOffset(const NlElement& e) {
  const host::Ints offset = host::int32s(e.needed("FInd"), "the element's FInd");
  if (!offset) host::refuse("NL{%d,3}.FInd must hold an offset in \"FNL\", got nothing", e.row + 1);
  return offset.data[0];
}

void addForceArray(const NlCall& call, const NlElement& e) {
  const mxArray* b = e.field("b");
  if (b && e.field("unl")) Add_Mt_u(b, forceValues(e.force(), e, "its force array"), call.r, "the element's b");
}

}  // namespace

void checkHandleLaw(const NlCall& call, const NlElement& e) {
  checkArguments(call, e);
  if (stores(call, e)) storeOffset(e);
}

void checkCallableLaw(const NlCall& call, const NlElement& e) {
  checkArguments(call, e);
  checkCommand(call, e);
}

void addHandleLaw(const NlCall& call, const NlElement& e) {
  const mxArray* F = e.force();
  mxArray* result = nullptr;
  callBack(call, e, 1, &result, "feval", e.needed("Fu"));
  if (result && mxIsStruct(result)) {
    F = host::field(result, "snl");
    if (!F) F = host::field(result, "unl");
  } else if (result) {
    F = result;
  }
  if (!F) return;
  const mxArray* b = e.field("b");
  const bool store = stores(call, e);
  if (!b && !store) return;
  const host::Doubles f = forceValues(F, e, "the result of Fu");
  if (b) Add_Mt_u(b, f, call.r, "the element's b");
  if (store) {
    const auto n = std::min(static_cast<long long>(host::rows(F)), static_cast<long long>(f.count));
    storeAscending(call.ctx.FNL, call.ctx.fnlLen, storeOffset(e), f.data, n);
  }
}

void addCallableLaw(const NlCall& call, const NlElement& e) {
  callWithoutResult(call, e, "feval", e.needed("type"));
  addForceArray(call, e);
}

void addHapselLaw(const NlCall& call, const NlElement& e) {
  callWithoutResult(call, e, "hapsel", nullptr);
  addForceArray(call, e);
}

}  // namespace quarn
