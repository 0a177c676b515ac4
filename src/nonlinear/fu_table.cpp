// The tabulated law.
#include <algorithm>
#include <climits>

#include "host/errors.h"
#include "nonlinear/laws.h"
#include "nonlinear/lin_interp.h"
#include "numbers/ranges.h"
#include "sparse/line_checks.h"

namespace quarn {

namespace {

/// Segment that a pass over the queries would find first: all that one pass leaves to the next.
double firstSegment(const TablePlace& t, const double* queries, bool ascending) {
  double record[3] = {t.record[0], t.record[1], t.record[2]};
  vorel_LinInterp(t.table, queries, record, nullptr, t.nx, t.ny, 1, 0, nullptr, nullptr, ascending);
  return record[0];
}

/// Values that a query writes: those of the table's columns, the segment's number where it has none, nothing for a negative count.
constexpr int resultColumns(int ny) { return ny > 0 ? ny : ny == 0 ? 1 : 0; }

}  // namespace

TablePlace tablePlace(const chandleNl_inout& h) {
  // Without knots there may be nothing at the table's place.
  double* table = h.iopt[7] > 0 || h.iopt[5] + 2LL <= h.optLen ? h.opt + h.iopt[5] : nullptr;
  return {table, h.opt + h.iopt[6], h.iopt[7], h.iopt[8]};
}

bool tableAscends(const chandleNl_inout& h) {
  if (h.ioptLen < 9 || h.iopt[7] < 2) return false;
  const TablePlace t = tablePlace(h);
  for (int i = 0; i + 1 < t.nx; ++i) {
    if (!(t.table[i] <= t.table[i + 1])) return false;
  }
  return true;
}

void checkTablePlace(const chandleNl_inout& h) {
  checkLength(static_cast<std::size_t>(h.ioptLen), 9, "iopt", "entries 6 to 9 place the table");
  const long long table = h.iopt[5];
  const long long record = h.iopt[6];
  const long long nx = h.iopt[7];
  const long long ny = std::max(h.iopt[8], 0);  // a negative count is none, but the record is kept
  if (table < 0 || record < 0 || nx < 0) host::refuse("iopt(6:8) must not be negative, got %lld %lld %lld", table, record, nx);
  const long long end = nx > h.optLen ? LLONG_MAX : table + nx * (1 + ny);
  if (end > h.optLen)
    host::refuse("a table of %lld knots and %lld columns at opt(%lld) ends beyond opt of %d values", nx, ny, table + 1, h.optLen);
  if (record + 3 > h.optLen) host::refuse("the search record at opt(%lld) ends beyond opt of %d values", record + 1, h.optLen);
  if (record < end && table < record + 3 && nx > 0) {
    host::refuse("the search record at opt(%lld) to (%lld) lies on the table at opt(%lld) to (%lld)", record + 1, record + 3, table + 1,
                 end);
  }
  const double* knots = h.opt + table;
  for (long long i = 0; i + 1 < nx; ++i) {
    if (knots[i] > knots[i + 1]) {
      host::refuse("the abscissae of a table must ascend, got %g after %g at knot %lld", knots[i + 1], knots[i], i + 2);
    }
  }
}

void checkTable(const chandleNl_inout& h, const ROr& /*ro*/) {
  checkTablePlace(h);
  const long long columns = resultColumns(h.iopt[8]);
  checkLength(h.snlTotal, columns * h.unlLen, "snl", "the table's columns for each observed value");
}

void FuTable(chandleNl_inout* h, ROr ro) {
  const TablePlace t = tablePlace(*h);
  if (h->tableAscends && h->unlLen == 1 && t.ny == 1) {
    h->snl[0] = interpolateOne(t.table, h->unl[0], t.record, t.nx);
    storeForces(*h, ro);
    return;
  }
  const auto queries = static_cast<std::size_t>(h->unlLen);
  const std::size_t results = queries * static_cast<std::size_t>(resultColumns(t.ny));
  const std::size_t size = static_cast<std::size_t>(t.nx) * (1 + static_cast<std::size_t>(std::max(t.ny, 0)));
  const auto options = static_cast<std::size_t>(h->optLen);
  // The call is repeated once for each observed value. With nothing shared between its arguments, a repetition that finds the same first
  // segment as the one before would only repeat it.
  const bool apart = h->unlLen > 1 && !overlap(h->unl, queries, h->snl, results) && !overlap(h->snl, results, h->opt, options) &&
                     !overlap(t.table, size, t.record, 3) && !overlap(h->unl, queries, h->opt, options);
  double first = apart ? firstSegment(t, h->unl, h->tableAscends) : 0.0;
  for (int repetition = 0; repetition < h->unlLen; ++repetition) {
    if (apart && t.ny == 1 && t.nx > 1) {
      interpolateApart(t.table, h->unl, t.record, h->snl, t.nx, h->unlLen, h->tableAscends);
    } else {
      vorel_LinInterp(t.table, h->unl, t.record, h->snl, t.nx, t.ny, h->unlLen, 1, nullptr, nullptr, h->tableAscends);
    }
    if (!apart) continue;
    const double next = firstSegment(t, h->unl, h->tableAscends);
    if (next == first) break;
    first = next;
  }
  storeForces(*h, ro);
}

}  // namespace quarn
