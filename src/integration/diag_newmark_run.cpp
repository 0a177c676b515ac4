// All steps of a run, in as few passes over the modes as the arguments allow.
#include <algorithm>

#include "base/handle_walk.h"
#include "host/arrays.h"
#include "integration/diag_newmark.h"
#include "numbers/ranges.h"

namespace quarn {

namespace {

struct Range {
  const double* data;
  std::size_t count;
};

}  // namespace

/// Whether no array that a step writes shares memory with another one: a caller's arrays may.
bool chandleDiagNewmark::apart(const ROr& c) const {
  const auto n = static_cast<std::size_t>(c.N);
  constexpr int written = 8;
  const Range ranges[] = {{c.u, c.uLen},
                          {c.v, c.vLen},
                          {c.a, c.aLen},
                          {uva.data, uva.count},
                          {store.data, store.count},
                          {snapshot.data, snapshot.count},
                          {def.data, def.count},
                          {data, 6},
                          {r.data, r.count},
                          {tft, static_cast<std::size_t>(Nb + 1) * static_cast<std::size_t>(NT)},
                          {saveTimes.data, saveTimes.count},
                          {diagonals.k, diagonals.k ? n : 0},
                          {diagonals.c, diagonals.c ? n : 0}};
  constexpr int all = sizeof ranges / sizeof ranges[0];
  for (int i = 0; i < written; ++i) {
    for (int k = i + 1; k < all; ++k) {
      if (overlap(ranges[i].data, ranges[i].count, ranges[k].data, ranges[k].count)) return false;
    }
  }
  return true;
}

/// Takes a diagonal stiffness at the head of the list, and a diagonal damping after it, into the pass over the modes.
void chandleDiagNewmark::foldDiagonals(const ROr& c, chandle** list, int nh) {
  const double* found[2] = {nullptr, nullptr};
  constexpr int types[2] = {HandleType::stiffness, HandleType::damping};
  folded = 0;
  while (folded < 2 && folded < nh && list[folded] && list[folded]->type == types[folded]) {
    found[folded] = list[folded]->diagonalValues();
    if (!found[folded]) break;
    ++folded;
  }
  diagonals = {found[0], c.beta, found[1]};
}

/// What a pass over N modes leaves out of vectors that are longer: copies up to Ndef rows, diagonal forces on c.N rows.
void chandleDiagNewmark::finishPass(const ROr& c) {
  for (std::ptrdiff_t i = N; i < Ndef; ++i) {
    uva.data[i] = c.u[i];
    uva.data[Ndef + i] = c.v[i];
    uva.data[2 * static_cast<std::ptrdiff_t>(Ndef) + i] = c.a[i];
  }
  if (!diagonals.k && !diagonals.c) return;  // an empty u may have two billion rows
  for (std::ptrdiff_t i = N; i < c.N; ++i) {
    if (diagonals.k) fmod[i] += diagonals.k[i] * (c.u[i] + diagonals.beta * c.v[i]);
    if (diagonals.c) fmod[i] += diagonals.c[i] * c.v[i];
  }
}

void chandleDiagNewmark::findClosing(chandle** list, int nh) {
  closing = static_cast<chandle**>(mxCalloc(static_cast<std::size_t>(nh) + 1, sizeof(chandle*)));
  closingCount = 0;
  forLive(list, nh, [&](chandle& h, int) {
    if (h.endsSteps()) closing[closingCount++] = &h;
  });
}

void chandleDiagNewmark::plan(const ROr& c, chandle** list, int nh) {
  findClosing(list, nh);
  if (gainTimes.count() > 0) between = static_cast<double*>(mxCalloc(2 * static_cast<std::size_t>(N), sizeof(double)));
  diagonals = {};
  folded = 0;
  if (c.N >= N) foldDiagonals(c, list, nh);
  onePass = Ndef >= N && apart(c);
  if (!onePass) {
    diagonals = {};
    folded = 0;
  }
  undisturbed = onePass && !gainFull && folded == nh && c.N == N && !iopt && NFNL == 0 && NFNLSave == 0;
}

void chandleDiagNewmark::run(chandle** list, int nh, const ROr& c) {
  const int last = steps() - 1;
  int j = 0;
  // The last step is always a whole one: it leaves the work array as it has to be.
  while (undisturbed && j < last) {
    int next = j;
    do ++next;
    while (next < last && !saveDue(time(next)));
    const double* loads = tft + static_cast<std::ptrdiff_t>(Nb + 1) * j + 1;
    newmarkSteps({c.u, c.v, c.a, N}, r.data + N, gain, loads, Nb + 1, Nb, next - j, diagonals, coefficients);
    data[5] = time(next);
    save(time(next), c);
    j = next;
  }
  for (; j <= last; ++j) doStep(list, nh, j, c);
}

}  // namespace quarn
