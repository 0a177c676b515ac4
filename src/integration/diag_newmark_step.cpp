#include <algorithm>

#include "base/handle_walk.h"
#include "integration/diag_newmark.h"
#include "integration/full_gain.h"
#include "numbers/ranges.h"

namespace quarn {

namespace {

void copyValues(double* to, const double* from, std::size_t n) {
  if (to && from && n > 0) moveValues(to, from, n);  // a caller's arrays may share memory
}

}  // namespace

void chandleDiagNewmark::doStep(chandle** list, int nh, int j, ROr c) {
  enterStep(j, c);
  if (onePass) {
    beginModes(j, c);
  } else {
    newmarkPredict(c.u, c.v, c.a, N, coefficients);
    newmarkLoad(fmod, r.data + N, N, loadsAt(j), N, Nb);
  }
  addForces(list, nh, c);
  if (gainFull) {
    correct(c.t, c);
  } else {
    newmarkCorrect(c.u, c.v, c.a, fmod, gain, N, coefficients);
  }
  endHandles();
  save(c.t, c);
  saveStore(c.t);
}

/// What comes before the modes' part of the step from column j: its time, copies, and the store of its loads.
void chandleDiagNewmark::enterStep(int j, ROr& c) {
  c.t = time(j + 1);
  c.begunAtZero = onePass ? N : 0;
  data[5] = c.t;
  if (!onePass) {
    const auto block = static_cast<std::size_t>(Ndef);
    copyValues(uva.data, c.u, block);
    copyValues(uva.data + block, c.v, block);
    copyValues(uva.data + 2 * block, c.a, block);
  }
  if (NFNL > 0) copyValues(snapshot.data, store.data, static_cast<std::size_t>(NFNL));
  storeLoads(j, c);
}

void chandleDiagNewmark::storeLoads(int j, const ROr& c) const {
  if (iopt) storeClipped(c.FNL, c.fnlLen, iopt[0], loadsAt(j), Nb);
}

/// Copies, predictor, load and folded forces.
void chandleDiagNewmark::beginModes(int j, const ROr& c) {
  double* copies = uva.data;
  newmarkBegin({c.u, c.v, c.a, N}, copies, copies + Ndef, copies + 2 * static_cast<std::ptrdiff_t>(Ndef), fmod, r.data + N, loadsAt(j), Nb,
               diagonals, coefficients);
  finishCopies(c);
  finishForces(c);
}

void chandleDiagNewmark::addForces(chandle** list, int nh, const ROr& c) {
  forLive(list + folded, nh - folded, [&](chandle& h, int) {
#ifdef QUARN_CHECKED
    h.checkSizes(c, uva.count - 3 * static_cast<std::size_t>(Ndef));
#endif
    h.Residual(c, fmod);
  });
}

void chandleDiagNewmark::endHandles() {
  for (int k = 0; k < closingCount; ++k) closing[k]->EndStep();
}

/// With a gain that is a matrix, or one between two of its pages.
void chandleDiagNewmark::correct(double t, const ROr& c) {
  const KnotPlace place = gainTimes.count() > 0 ? gainTimes.find(t) : KnotPlace{0, 0.0};
  const double* page = gainFull + static_cast<std::ptrdiff_t>(place.at) * N * N;
  if (place.weight == 0.0) {
    newmarkCorrectFull(c.u, c.v, c.a, fmod, page, N, coefficients);
  } else {
    newmarkCorrectBetween(c.u, c.v, c.a, fmod, page, place.weight, between, N, coefficients);
  }
}

/// The column that time t is saved in; null where it is not.
double* chandleDiagNewmark::columnFor(double t) {
  while (jSave < NSave && t > saveTimes.data[jSave]) ++jSave;
  const bool due = jSave < NSave && t == saveTimes.data[jSave];
  return due ? def.data + static_cast<std::ptrdiff_t>(jSave) * Ndef : nullptr;
}

void chandleDiagNewmark::save(double t, const ROr& c) { copyValues(columnFor(t), c.u, static_cast<std::size_t>(Ndef)); }

void chandleDiagNewmark::saveStore(double t) {
  while (jFNLSave < NFNLSave && t > storeTimes.data[jFNLSave]) ++jFNLSave;
  if (jFNLSave >= NFNLSave) return;
  // The cursor walks its own times; whether to save is decided by the time that "def" has at that place.
  const auto place = static_cast<std::size_t>(jFNLSave);
  const bool due = place < saveTimes.count && t == saveTimes.data[place];
  const auto length = static_cast<std::size_t>(NFNL);
  if (due && (place + 1) * length <= storeDef.count) copyValues(storeDef.data + place * length, store.data, length);
}

}  // namespace quarn
