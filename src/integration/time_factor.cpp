#include "integration/time_factor.h"

#include <cmath>
#include <cstdio>

#include "host/errors.h"

namespace quarn {

namespace {

struct Name {
  char text[64];
};

Name factorOf(const char* owner) {
  Name name;
  std::snprintf(name.text, sizeof name.text, "the factor of %s", owner);
  return name;
}

}  // namespace

void TimeFactor::read(const mxArray* value, const char* owner) {
  table = nullptr;
  taken = false;
  const mxArray* field = host::field(value, "factor");
  if (host::count(field) == 0) return;
  const Name name = factorOf(owner);
  const host::Doubles all = host::realDoubles(field, name.text);
  if (host::rows(field) != 2) {
    host::refuse("%s must be 2 x n, times in row 1 and factors in row 2, got %s", name.text, host::describe(field).text);
  }
  const int n = host::cols(field);
  knots = Knots(all.data, 2, n);
  const int wrong = knots.firstWrong();
  if (wrong < n) {
    host::refuse("the times of %s must be finite and ascend (two equal ones are a jump), got %g in column %d", name.text,
                 all.data[2 * static_cast<std::ptrdiff_t>(wrong)], wrong + 1);
  }
  if (!knots.spanIsFinite()) {
    host::refuse("the times of %s go from %g to %g: the time between them is beyond all numbers", name.text, knots.first(), knots.last());
  }
  for (int k = 0; k < n; ++k) {
    const double* y = all.data + 2 * static_cast<std::ptrdiff_t>(k) + 1;
    if (!std::isfinite(y[0])) host::refuse("%s must be finite, got %g in row 2, column %d", name.text, y[0], k + 1);
    if (k > 0 && !std::isfinite(y[0] - y[-2])) {
      host::refuse("%s must change by a finite number, got %g after %g in column %d", name.text, y[0], y[-2], k + 1);
    }
  }
  table = all.data;
}

void TimeFactor::take(const StepTimes& times, const char* owner) {
  if (!table) return;
  taken = true;
  if (const char* name = writtenIn(times, table, 2 * static_cast<std::size_t>(knots.count()))) {
    host::refuse("the factor of %s must have memory of its own, got that of %s, which a step writes", owner, name);
  }
  for (int j = 0; j < times.count; ++j) {
    const double t = times.first[times.stride * j];
    if (knots.covers(t)) continue;
    host::refuse("the factor of %s must be given for every step: its times go from %g to %g, a step ends at %g", owner, knots.first(),
                 knots.last(), t);
  }
}

void TimeFactor::checkTaken(const char* owner) const {
  if (table && !taken) host::refuse("the factor of %s is one of time, which only a run of the integrator has", owner);
}

double TimeFactor::value(double t) {
  const KnotPlace place = knots.find(t);
  const double* y = table + 2 * static_cast<std::ptrdiff_t>(place.at) + 1;
  return place.weight == 0.0 ? y[0] : y[0] + (y[2] - y[0]) * place.weight;
}

}  // namespace quarn
