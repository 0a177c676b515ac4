#include "nonlinear/user_law.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "base/handle_walk.h"
#include "host/errors.h"
#include "nonlinear/state_laws.h"
#include "nonlinear/user_library.h"
#include "numbers/ranges.h"

namespace quarn {

namespace {

constexpr int ahead = 3;  // values of opt before the parameters

int statesOf(const chandleNl_inout& h) { return h.ioptLen >= 5 ? h.iopt[3] : 0; }

/// Rows of one evaluation: a law without states may be evaluated for several groups of rows.
int groupOf(const chandleNl_inout& h) {
  const int states = statesOf(h);
  return states == 0 && h.ioptLen > 2 && h.iopt[2] > 0 ? h.iopt[2] : h.unlLen - states;
}

const quarn_law* libraryOf(const mxArray* field) {
  char path[4096];
  const std::size_t n = host::count(field);
  const bool text = mxIsChar(field) && host::rows(field) == 1 && n < sizeof path;
  if (!text)
    host::refuse("\"library\" must be the path of a library, a row of fewer than 4096 characters, got %s", host::describe(field).text);
  mxGetString(field, path, static_cast<mwSize>(sizeof path));
  if (std::strlen(path) != n || path[0] != '/') host::refuse("\"library\" must be a path from the root, /..., got \"%s\"", path);
  return userLibrary(path);
}

void requireCount(const char* what, int wanted, int got) {
  if (wanted != QUARN_ANY && wanted != got) host::refuse("the law in the library takes %d %s, the element has %d", wanted, what, got);
}

/// What to call a value that is not finite.
const char* nameOf(double x) {
  if (std::isnan(x)) return "NaN";
  return x > 0.0 ? "Inf" : "-Inf";
}

/// Ends the call and names the first value that is not finite; does nothing where the motion has grown out of hand.
void refuseNumbers(const chandleNl_inout& h, int rows, int states, double t) {
  for (int i = 0; i < rows; ++i) {
    if (!(std::fabs(h.unl[i]) < 1e30 && std::fabs(h.vnl[i]) < 1e30)) return;
  }
  const auto bad = [](double x) { return !std::isfinite(x); };
  const auto force = static_cast<int>(std::find_if(h.snl, h.snl + rows, bad) - h.snl);
  const double* state = h.unl + rows;
  const auto k = static_cast<int>(std::find_if(state, state + states, bad) - state);
  const bool isForce = force < rows;
  host::refuse("the user's law gives %s as %s %d at t = %.9g s, where x(1) = %g and v(1) = %g", nameOf(isForce ? h.snl[force] : state[k]),
               isForce ? "force" : "state", (isForce ? force : k) + 1, t, h.unl[0], h.vnl[0]);
}

bool allFinite(const double* x, int n) {
  return std::all_of(x, x + n, [](double value) { return std::isfinite(value); });
}

/// Takes the n values of what the function returned.
void take(mxArray* result, int n, const char* what, double t, double* to) {
  if (!result || !host::isRealDouble(result) || host::count(result) != static_cast<std::size_t>(n)) {
    host::refuse("the law's function must return %d %s, full and real, got %s at t = %.9g s", n, what, host::describe(result).text, t);
  }
  if (n > 0) std::copy_n(mxGetPr(result), n, to);
  mxDestroyArray(result);
}

void callFunction(chandleNl_inout* h, int first, int rows, int states, double t) {
  mxArray* in[] = {const_cast<mxArray*>(h->call), host::columnToGive(h->unl + first, rows), host::columnToGive(h->vnl + first, rows),
                   host::columnToGive(h->unl + rows, states), mxCreateDoubleScalar(t)};
  mxArray* out[2] = {nullptr, nullptr};
  const std::uint64_t before = disturbedUses;
  host::callHost(states > 0 ? 2 : 1, out, 5, in, "feval");
  if (disturbedUses != before) {  // h may be gone
    host::refuse("the law's function freed, or used in a call of its own, a handle of the call that waits for it, at t = %.9g s", t);
  }
  take(out[0], rows, "forces", t, h->snl + first);
  if (states > 0) take(out[1], states, "states", t, h->unl + rows);
  for (int k = 1; k < 5; ++k) mxDestroyArray(in[k]);  // last: a result may be one of them
}

}  // namespace

void bindUserLaw(chandleNl_inout* h) {
  const mxArray* library = host::field(h->val, "library");
  h->call = host::field(h->val, "call");
  h->user = nullptr;
  if ((host::count(library) > 0) == (h->call != nullptr)) {
    host::refuse("an element of law \"User\" needs a field \"library\" or a field \"call\", one of them");
  }
  if (!h->call) {
    h->user = libraryOf(library);
  } else if (!host::isClass(h->call, "function_handle")) {
    host::refuse("\"call\" must be a function handle, got %s", host::describe(h->call).text);
  }
}

void checkUser(const chandleNl_inout& h, const ROr& /*ro*/) {
  if (h.optLen < ahead) host::refuse("\"opt\" of law \"User\" must hold %d values or more, got %d", ahead, h.optLen);
  const int states = statesOf(h);
  if (states < 0 || states > h.unlLen)
    host::refuse("iopt(4) of law \"User\" must be from 0 to the %d values of unl, got %d", h.unlLen, states);
  const int rows = h.unlLen - states;
  if (states > 0 && (h.iopt[1] <= 0 || h.iopt[2] != rows || h.iopt[4] != 1)) {
    host::refuse("iopt(2:5) of law \"User\" must be the place of its states in u, from 1, then [%d %d 1], got [%d %d %d %d]", rows, states,
                 h.iopt[1], h.iopt[2], h.iopt[3], h.iopt[4]);
  }
  const int group = groupOf(h);
  if (group > 0 && rows % group != 0) host::refuse("unl of law \"User\" must hold groups of iopt(3) = %d values, got %d", group, rows);
  if (h.user) {
    requireCount("rows", h.user->rows, group);
    requireCount("parameters", h.user->parameters, h.optLen - ahead);
    requireCount("states", h.user->states, states);
  }
  requireValues("User", "unl", h.unlTotal, h.unlLen);
  requireValues("User", "vnl", h.vnlTotal, h.unlLen);
  requireValues("User", "snl", h.snlTotal, h.unlLen);
  const auto n = static_cast<std::size_t>(std::max(h.unlLen, 0));
  if (overlap(h.snl, n, h.unl, n) || overlap(h.snl, n, h.vnl, n) || overlap(h.unl, n, h.vnl, n)) {
    host::refuse("\"unl\", \"vnl\" and \"snl\" of law \"User\" must each have memory of their own");
  }
}

void FuUser(chandleNl_inout* h, ROr ro) {
  const int states = statesOf(*h);
  const int rows = h->unlLen - states;
  const int group = groupOf(*h);
  if (rows > 0) std::fill_n(h->snl, rows, 0.0);
  if (h->user) {
    const auto evaluate = h->user->evaluate;
    quarn_step now{group, h->optLen - ahead, states, ro.t, h->opt[2], h->unl, h->vnl, h->opt + ahead};
    for (int first = 0; first < rows; first += group) {
      now.x = h->unl + first;
      now.v = h->vnl + first;
      evaluate(&now, h->snl + first, h->unl + rows);
    }
  } else {
    for (int first = 0; first < rows; first += group) callFunction(h, first, group, states, ro.t);
  }
  if (!allFinite(h->snl, rows) || !allFinite(h->unl + rows, states)) refuseNumbers(*h, rows, states, ro.t);
  StoreState(h, ro);
}

}  // namespace quarn
