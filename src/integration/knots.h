// Where a time lies among the times of a table that is linear in between.
#pragma once

#include <cstddef>

namespace quarn {

/// A value at a time is y[at] + (y[at + 1] - y[at]) * weight, and y[at] alone, to the bit, where weight is 0.
struct KnotPlace {
  int at;
  double weight;
};

/// n ascending times x[0], x[stride], ...; two that are equal are a jump, at which the place is midway between its sides. Borrowed.
class Knots {
 public:
  Knots() = default;
  Knots(const double* times, int stride, int count) : x(times), step(stride), n(count) {}

  int count() const { return n; }
  const double* data() const { return x; }
  double first() const { return time(0); }
  double last() const { return time(n - 1); }
  bool covers(double t) const { return n > 0 && t >= first() && t <= last(); }
  /// The first time, counted from 0, that is not finite, below the one before it, or the third of equal ones; n where there is none.
  int firstWrong() const;
  /// Whether the time from the first to the last one is a number: that from -1e308 to 1e308 s is not, and no weight can be told.
  bool spanIsFinite() const;
  /// The place of t, which the times must cover. It depends on t alone; the search begins where the last one ended.
  KnotPlace find(double t);

 private:
  double time(int k) const { return x[static_cast<std::ptrdiff_t>(step) * k]; }

  const double* x = nullptr;
  int step = 1;
  int n = 0;
  int cursor = 0;
};

}  // namespace quarn
