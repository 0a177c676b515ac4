// The law "User": a law of the user's, compiled or a function of the host's language. An addition: no other element has its fields.
//
// The element's value has, beside the fields of every element, one of
//   "library"  path of a shared library with a law (quarn_law.h), a row of characters that begins with a slash
//   "call"     function handle: f = call (x, v, s, t), or [f, s] = call (x, v, s, t) where there are states; columns
// opt holds the code, one value that is not used, the time step h [s] and the parameters p; a function is not given h and p. iopt[2] is
// the number of rows, iopt[3] that of states, iopt[4] 1 where there are states; these follow the observed displacements in unl. Without
// states the law is evaluated for every iopt[2] rows in turn (0: for all of them at once).
// "snl" and "vnl" are needed.
#pragma once

#include "nonlinear/nl_inout.h"

namespace quarn {

/// Finds the library or the function in the handle's value. Refuses a value with none of them or both, what is no path or no function
/// handle, and what userLibrary refuses.
void bindUserLaw(chandleNl_inout* h);

/// Evaluates the law: forces to snl, new states to unl, then StoreState. Ends the call where forces or states are not finite though
/// displacements and velocities are below 1e30: beyond it the motion has grown out of hand, and what is computed of it may overflow.
/// Errors of a function leave the command as they are. A function that frees handles of the call that waits for it, or uses them in a
/// call of its own, ends the waiting one.
void FuUser(chandleNl_inout* h, ROr ro);

/// Refuses arrays that do not fit the counts of the law or share memory where the law would see its own results.
void checkUser(const chandleNl_inout& h, const ROr& ro);

}  // namespace quarn
