// The walk over the handles of a list.
#pragma once

#include "base/chandle.h"
#include "host/errors.h"

namespace quarn {

/// Whether a place of a list holds a handle that has not been freed.
inline bool live(const chandle* h) { return h && h->type >= 0; }

/// Calls body(handle, k) for the live handles among the n of list, in order.
template <class Body>
inline void forLive(chandle* const* list, int n, const Body& body) {
  for (int k = 0; k < n; ++k) {
    if (live(list[k])) body(*list[k], k);
  }
}

/// Errors name the element of the caller's list, counted from 1, until the next one is named; 0: none.
inline void nameElement(int number) noexcept { host::setPart("element", number); }

/// Calls body(handle) for the live handles, naming each for error texts; the first of them is element `first` of the caller's list.
template <class Body>
inline void forNamed(chandle* const* list, int n, int first, const Body& body) {
  forLive(list, n, [&](chandle& h, int k) {
    nameElement(first + k);
    body(h);
  });
  nameElement(0);
}

/// Has the live handles check their sizes against the context and rLen values of residual, naming each; the first of them is element
/// `first` of the caller's list.
inline void checkAll(chandle* const* list, int n, int first, const ROr& c, std::size_t rLen) {
  forNamed(list, n, first, [&](chandle& h) { h.checkSizes(c, rLen); });
}

/// Gives them the times of a run's steps, in the same way.
inline void giveTimes(chandle* const* list, int n, int first, const StepTimes& times) {
  forNamed(list, n, first, [&](chandle& h) { h.takeTimes(times); });
}

/// How often a registered handle was freed or gathered anew while a call worked with it, since the module was loaded. What calls the user's
/// functions in between compares it before and after: the handle, or its work memory, may be gone.
inline std::uint64_t disturbedUses = 0;

inline void setInUse(chandle* const* list, int n, bool used) {
  forLive(list, n, [used](chandle& h, int) { h.inUse = used; });
}

/// Has them take their work memory; r: the residual that they will add to.
inline void takeAllWork(chandle* const* list, int n, host::Doubles r) {
  forLive(list, n, [&](chandle& h, int) { h.takeWork(r); });
}

}  // namespace quarn
