// Lists of handles, gathered for one call.
#pragma once

#include "base/chandle.h"
#include "host/arrays.h"

namespace quarn {

/// Fills out (as newHandleList made it for list) and returns their number. Every handle's initCpt is called.
///   cell           a new handle for this call from each struct, of the type in its field "type"; its arrays stay the caller's
///   "chandle"      the registered handles whose indices the object's method "remi" returns
/// Raises KORV:quarn:NonHandle "Handle does not exist" for an index without a handle, "Not a valid chandle type", and what
/// the handles' initCpt raise.
int fillVectP(chandle** out, const mxArray* list);

/// Adds the contributions of the n handles to r, in order, after all of them have been checked. Null places and handles whose type is
/// negative (freed ones) are passed over.
void addResiduals(chandle** list, int n, const ROr& c, host::Doubles r);

/// Room for the handles of list, in host memory of the current call. Refuses a list longer than a 32-bit integer counts.
chandle** newHandleList(const mxArray* list);

}  // namespace quarn
