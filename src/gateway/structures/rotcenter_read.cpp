#include <algorithm>

#include "gateway/structures/nl_builtin.h"
#include "gateway/structures/rotcenter.h"
#include "host/errors.h"
#include "numbers/convert.h"
#include "sparse/mt_products.h"

namespace quarn {

long long place(double number, std::size_t limit) {
  const long long index = static_cast<long long>(toInt(number)) - 1;
  return index >= 0 && static_cast<std::size_t>(index) < limit ? index : -1;
}

std::size_t commonLength(const NlCall& call) {
  const auto n = static_cast<std::size_t>(std::max(0, call.ctx.N));
  return std::min({n, call.ctx.uLen, call.ctx.vLen, call.r.count});
}

namespace {

/// The second column of "Cell".
struct Parameters {
  const NlElement& e;
  const mxArray* cell;
  int m;

  /// Element k (1-based) of the column; null where it is unset or empty.
  const mxArray* at(int k) const {
    return k <= m ? host::cell(cell, static_cast<std::size_t>(m) + static_cast<std::size_t>(k) - 1) : nullptr;
  }

  const mxArray* needed(int k) const {
    const mxArray* a = at(k);
    if (!a) host::refuse("NL{%d,3}.Cell{%d,2} is needed by \"rotcenter\", it is empty or missing", e.row + 1, k);
    return a;
  }

  host::Doubles doubles(int k, std::size_t least) const {
    const mxArray* a = least > 0 ? needed(k) : at(k);
    if (!host::holdsDoubles(a)) {
      host::refuse("NL{%d,3}.Cell{%d,2} must be a full real double array, got %s", e.row + 1, k, host::describe(a).text);
    }
    const host::Doubles d = host::doubles(a, "Cell");
    if (d.count < least) host::refuse("NL{%d,3}.Cell{%d,2} must hold %zu values, got %zu", e.row + 1, k, least, d.count);
    return d;
  }
};

Parameters readCell(const NlElement& e) {
  const mxArray* cell = e.needed("Cell");
  const int m = host::rows(cell);
  if (!mxIsCell(cell) || m < 10 || host::cols(cell) < 2) {
    host::refuse("NL{%d,3}.Cell must be a cell of 10 rows or more and 2 columns, got %s", e.row + 1, host::describe(cell).text);
  }
  return {e, cell, m};
}

PointDofs readDofs(const Parameters& c, int dofRow, int posRow, std::size_t length) {
  const host::Doubles pos = c.doubles(posRow, 0);
  const host::Doubles dof = c.doubles(dofRow, pos.count);
  for (std::size_t k = 0; k < pos.count; ++k) {
    if (place(pos.data[k], 3) < 0) {
      host::refuse("NL{%d,3}.Cell{%d,2}(%zu) must be a component position from 1 to 3, got %g", c.e.row + 1, posRow, k + 1, pos.data[k]);
    }
    if (place(dof.data[k], length) < 0) {
      host::refuse("NL{%d,3}.Cell{%d,2}(%zu) must be a DOF number from 1 to %zu, got %g", c.e.row + 1, dofRow, k + 1, length, dof.data[k]);
    }
  }
  return {dof.data, pos.data, pos.count};
}

/// Observation matrix of a point; one without rows, or none, is a point without motion.
const mxArray* readObservation(const NlCall& call, const Parameters& c, int row, const char* name) {
  if (row > c.m) c.needed(row);
  const mxArray* M = host::matrixCell(c.cell, static_cast<std::size_t>(c.m) + static_cast<std::size_t>(row) - 1);
  const SparseView v = sparseView(M, name);
  checkProd(v, std::min(call.ctx.uLen, call.ctx.vLen), 3, name);
  checkAdd(v, 3, call.r.count, name);
  return M;
}

const int* readStore(const NlCall& call, const Parameters& c) {
  const mxArray* a = c.needed(11);
  const host::Ints at = host::int32s(a, "the element's Cell{11,2}");
  if (at.count < 3) host::refuse("NL{%d,3}.Cell{11,2} must hold 3 positions in \"FNL\", got %zu", c.e.row + 1, at.count);
  for (int k = 0; k < 3; ++k) {
    if (at.data[k] < 0 || static_cast<std::size_t>(at.data[k]) >= call.ctx.fnlLen) {
      host::refuse("NL{%d,3}.Cell{11,2}(%d) must be a position from 0 in the model's \"FNL\" of %zu values, got %d", c.e.row + 1, k + 1,
                   call.ctx.fnlLen, at.data[k]);
    }
  }
  return at.data;
}

ForceTable readTable(const NlElement& e, const char* table, const char* cursor) {
  const mxArray* a = e.needed(table);
  const host::Doubles X = e.doubles(table);
  if (host::cols(a) < 2) {
    host::refuse("NL{%d,3}.%s must be a table with 2 columns (abscissae, forces), got %s", e.row + 1, table, host::describe(a).text);
  }
  return {X.data, X ? host::rows(a) : 0, e.writable(cursor, 3).data};
}

}  // namespace

RotCenter readRotCenter(const NlCall& call, const NlElement& e) {
  const Parameters c = readCell(e);
  const std::size_t length = commonLength(call);
  RotCenter rc;
  rc.rotation = c.doubles(1, 1).data[0];
  if (place(rc.rotation, length) < 0) {
    host::refuse("NL{%d,3}.Cell{1,2} must be the rotation DOF's number from 1 to %zu, got %g", e.row + 1, length, rc.rotation);
  }
  rc.R0 = c.doubles(2, 9).data;
  rc.p = c.doubles(3, 3).data;
  rc.q = c.doubles(4, 3).data;
  rc.w = c.doubles(10, 3).data;
  if (c.m <= 14) {
    rc.A = readDofs(c, 5, 6, length);
    rc.B = readDofs(c, 7, 8, length);
  } else {
    rc.observed = true;
    rc.obsA = readObservation(call, c, 15, "the element's Cell{15,2}");
    rc.obsB = readObservation(call, c, 17, "the element's Cell{17,2}");
  }
  if (c.m >= 11) rc.store = readStore(call, c);
  rc.fu = readTable(e, "Fu", "cur_u");
  rc.fv = readTable(e, "Fv", "cur_v");
  return rc;
}

void checkRotCenter(const NlCall& call, const NlElement& e) { readRotCenter(call, e); }

}  // namespace quarn
