#include <algorithm>
#include <cstring>

#include "base/handle_walk.h"
#include "integration/diag_newmark.h"
#include "integration/full_gain.h"
#include "numbers/ranges.h"

namespace quarn {

namespace {

void copyValues(double* to, const double* from, std::size_t n) {
  if (to && from && n > 0) std::memmove(to, from, n * sizeof(double));  // a caller's arrays may share memory
}

}  // namespace

void chandleDiagNewmark::doStep(chandle** list, int nh, int j, ROr c) {
  const std::ptrdiff_t rows = Nb + 1;
  const double* column = tft + rows * j;
  const double t = column[rows];
  const double* loads = column + 1;
  c.t = t;
  c.begunAtZero = onePass ? N : 0;
  data[5] = t;

  const auto block = static_cast<std::size_t>(Ndef);
  if (!onePass) {
    copyValues(uva.data, c.u, block);
    copyValues(uva.data + block, c.v, block);
    copyValues(uva.data + 2 * block, c.a, block);
  }
  if (NFNL > 0) copyValues(snapshot.data, store.data, static_cast<std::size_t>(NFNL));
  if (iopt) storeClipped(c.FNL, c.fnlLen, iopt[0], loads, Nb);

  if (onePass) {
    newmarkBegin({c.u, c.v, c.a, N}, uva.data, uva.data + block, uva.data + 2 * block, fmod, r.data + N, loads, Nb, diagonals,
                 coefficients);
    finishPass(c);
  } else {
    newmarkPredict(c.u, c.v, c.a, N, coefficients);
    newmarkLoad(fmod, r.data + N, N, loads, N, Nb);
  }
  forLive(list + folded, nh - folded, [&](chandle& h, int) {
#ifdef QUARN_CHECKED
    h.checkSizes(c, uva.count - 3 * block);
#endif
    h.Residual(c, fmod);
  });
  if (gainFull) {
    correct(t, c);
  } else {
    newmarkCorrect(c.u, c.v, c.a, fmod, gain, N, coefficients);
  }
  for (int k = 0; k < closingCount; ++k) closing[k]->EndStep();
  save(t, c);
  saveStore(t);
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

void chandleDiagNewmark::save(double t, const ROr& c) {
  while (jSave < NSave && t > saveTimes.data[jSave]) ++jSave;
  if (jSave < NSave && t == saveTimes.data[jSave]) {
    copyValues(def.data + static_cast<std::ptrdiff_t>(jSave) * Ndef, c.u, static_cast<std::size_t>(Ndef));
  }
}

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
