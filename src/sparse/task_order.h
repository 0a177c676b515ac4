// For ThreadSanitizer, which does not see the order that the scheduler's library, not instrumented, establishes between the caller and
// the tasks: here it is told.
#pragma once

#ifdef __SANITIZE_THREAD__

#include <sanitizer/tsan_interface.h>

namespace quarn {

/// What the caller did before comes before every task, and every task before what the caller does when this is gone.
class TaskOrder {
 public:
  TaskOrder() { __tsan_release(edges); }
  ~TaskOrder() { __tsan_acquire(edges + 1); }
  TaskOrder(const TaskOrder&) = delete;
  TaskOrder& operator=(const TaskOrder&) = delete;

  void enter() const { __tsan_acquire(edges); }
  void leave() const { __tsan_release(edges + 1); }

 private:
  mutable char edges[2] = {};
};

/// A loop body that takes part in that order.
template <class Body>
struct Ordered {
  const Body& body;
  const TaskOrder& order;

  template <class Range>
  void operator()(const Range& range) const {
    order.enter();
    body(range);
    order.leave();
  }
};

}  // namespace quarn

#endif
