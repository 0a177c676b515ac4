// What is refused of a gain that is a matrix, and of its times, before a run.
#include <algorithm>

#include "host/errors.h"
#include "integration/diag_newmark.h"
#include "numbers/ranges.h"

namespace quarn {

/// What the steps write: nine arrays, u, v and a first.
void chandleDiagNewmark::findWritten(const ROr& c, WrittenArray* arrays) const {
  const WrittenArray all[writtenArrays] = {{"u", c.u, c.uLen},
                                           {"v", c.v, c.vLen},
                                           {"a", c.a, c.aLen},
                                           {"mem.uva.uva", uva.data, uva.count},
                                           {"mem.uva.FNL", snapshot.data, snapshot.count},
                                           {"the model's FNL", store.data, store.count},
                                           {"out.def", def.data, def.count},
                                           {"out.FNL.def", storeDef.data, storeDef.count},
                                           {"data", data, 6}};
  std::copy_n(all, writtenArrays, arrays);
}

/// Refuses a matrix gain, its times, or its residual, in memory that a correction writes: what it reads would change on the way.
void chandleDiagNewmark::checkGain(const StepTimes& times) const {
  if (!gainFull) return;
  const auto n = static_cast<std::size_t>(N);
  const auto pages = static_cast<std::size_t>(gainTimes.count());
  if (const char* name = writtenIn(times, gainFull, n * n * std::max<std::size_t>(1, pages))) {
    host::refuse("the integrator's gain must have memory of its own, got that of %s, which a step writes", name);
  }
  if (const char* name = writtenIn(times, gainTimes.data(), pages)) {
    host::refuse("the integrator's gaint must have memory of its own, got that of %s, which a step writes", name);
  }
  for (int k = 0; k < 3; ++k) {
    const WrittenArray& a = times.written[k];
    if (overlap(a.data, a.count, uva.data, uva.count)) {
      host::refuse("mem.uva.uva must have memory of its own beside a gain that is a matrix, got that of %s", a.name);
    }
  }
}

/// Refuses steps that end outside the times of the gain's pages.
void chandleDiagNewmark::checkGainTimes(const StepTimes& times) const {
  for (int j = 0; gainTimes.count() > 0 && j < times.count; ++j) {
    const double t = times.first[times.stride * j];
    if (gainTimes.covers(t)) continue;
    host::refuse("the integrator's gain must be given for every step: the times of gaint go from %g to %g, a step ends at %g",
                 gainTimes.first(), gainTimes.last(), t);
  }
}

}  // namespace quarn
