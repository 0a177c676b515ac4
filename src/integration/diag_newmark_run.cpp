// All steps of a run, in as few passes over the modes as the arguments allow.
#include <algorithm>

#include "base/handle_walk.h"
#include "host/arrays.h"
#include "integration/diag_newmark.h"
#include "integration/newmark_steps.h"
#include "numbers/ranges.h"

namespace quarn {

/// The arrays of a run: first those that a step writes, then those that it reads.
int chandleDiagNewmark::findRanges(const ROr& c, Range* ranges) const {
  const auto n = static_cast<std::size_t>(c.N);
  const Range all[rangesOfRun] = {{c.u, c.uLen},
                                  {c.v, c.vLen},
                                  {c.a, c.aLen},
                                  {uva.data, uva.count},
                                  {store.data, store.count},
                                  {snapshot.data, snapshot.count},
                                  {def.data, def.count},
                                  {storeDef.data, storeDef.count},
                                  {data, 6},
                                  {r.data, r.count},
                                  {tft, static_cast<std::size_t>(Nb + 1) * static_cast<std::size_t>(NT)},
                                  {saveTimes.data, saveTimes.count},
                                  {storeTimes.data, storeTimes.count},
                                  {diagonals.k, diagonals.k ? n : 0},
                                  {diagonals.c, diagonals.c ? n : 0}};
  std::copy_n(all, rangesOfRun, ranges);
  constexpr int written = 9;
  return written;
}

/// Whether no array that a step writes shares memory with another one: a caller's arrays may.
bool chandleDiagNewmark::apart(const Range* ranges, int written) {
  for (int i = 0; i < written; ++i) {
    if (!apartFrom(ranges + i + 1, rangesOfRun - i - 1, ranges[i].data, ranges[i].count)) return false;
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

/// What a pass over N modes leaves out of vectors that are longer: copies up to Ndef rows.
void chandleDiagNewmark::finishCopies(const ROr& c) {
  for (std::ptrdiff_t i = N; i < Ndef; ++i) {
    uva.data[i] = c.u[i];
    uva.data[Ndef + i] = c.v[i];
    uva.data[2 * static_cast<std::ptrdiff_t>(Ndef) + i] = c.a[i];
  }
}

/// And diagonal forces on c.N rows.
void chandleDiagNewmark::finishForces(const ROr& c) {
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
  Range ranges[rangesOfRun];
  const int written = findRanges(c, ranges);
  onePass = Ndef >= N && apart(ranges, written);
  if (!onePass) {
    diagonals = {};
    folded = 0;
  }
  undisturbed = onePass && !gainFull && folded == nh && c.N == N;
  unseen = onePass && !gainFull;
  forLive(list + folded, nh - folded, [&](const chandle& h, int) { unseen = unseen && h.keepsToItself(ranges, rangesOfRun); });
}

/// Steps from column j on to the last but one, many in one pass over the modes. What they copy into the work array nobody sees.
int chandleDiagNewmark::runUndisturbed(int j, const ROr& c) {
  constexpr int together = 256;
  const int last = steps() - 1;
  double* saves[together];
  while (j < last) {
    const int count = std::min(together, last - j);
    for (int k = 0; k < count; ++k) {
      const double t = time(j + k + 1);
      saves[k] = saveDue(t) ? columnFor(t) : nullptr;
      if (saves[k]) std::copy(c.u + N, c.u + Ndef, saves[k] + N);
      if (storeSaveDue(t)) {
        storeLoads(j + k, c);
        saveStore(t);
      }
    }
    newmarkSteps({c.u, c.v, c.a, N}, r.data + N, gain, {loadsAt(j), Nb + 1, Nb, count, saves}, diagonals, coefficients);
    j += count;
    storeLoads(j - 1, c);
  }
  return j;
}

/// Time and loads of a step. The snapshot of the force store and the time in "data" are left to the last one, since nobody looks at them
/// before.
void chandleDiagNewmark::enterUnseen(int j, ROr& c) const {
  c.t = time(j + 1);
  storeLoads(j, c);
}

/// Steps from column j on to the last but one. What they copy into the work array nobody sees, so that the correction of each and the
/// beginning of the next are one pass.
int chandleDiagNewmark::runUnseen(chandle** list, int nh, int j, ROr c) {
  const int last = steps() - 1;
  const ModalState modes{c.u, c.v, c.a, N};
  enterStep(j, c);
  beginModes(j, c);
  for (;;) {
    addForces(list, nh, c);
    endHandles();
    double* column = columnFor(c.t);
    if (column) std::copy(c.u + N, c.u + Ndef, column + N);
    saveStore(c.t);
    if (++j == last) {
      newmarkCorrect(c.u, c.v, c.a, fmod, gain, N, coefficients);
      if (column) std::copy(c.u, c.u + N, column);
      return j;
    }
    enterUnseen(j, c);
    newmarkNext(modes, fmod, gain, r.data + N, loadsAt(j), Nb, diagonals, coefficients, column);
    finishForces(c);
  }
}

void chandleDiagNewmark::run(chandle** list, int nh, const ROr& c) {
  const int last = steps() - 1;
  int j = 0;
  // The last step is always a whole one: it leaves the work array as it has to be.
  if (undisturbed && j < last) j = runUndisturbed(j, c);
  if (unseen && j < last) j = runUnseen(list, nh, j, c);
  for (; j <= last; ++j) doStep(list, nh, j, c);
}

}  // namespace quarn
