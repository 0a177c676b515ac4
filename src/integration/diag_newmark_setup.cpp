// Reading the integrator's value and binding the arrays of a run.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/fixed_errors.h"
#include "base/handle_walk.h"
#include "host/errors.h"
#include "integration/diag_newmark.h"
#include "sparse/line_checks.h"
#include "sparse/sparse_view.h"

namespace quarn {

namespace {

SparseView fullField(const mxArray* value, const char* field, const char* name) {
  const mxArray* a = host::field(value, field);
  if (!a) host::refuse("the integrator needs a field \"%s\"", field);
  SparseView v = sparseView(a, name);
  if (v.ir && std::strcmp(field, "r") == 0) host::fail(fixed::fullLoadsExpected);
  if (v.ir) host::refuse("%s must be a full matrix, got a sparse one", name);
  checkDense(v, name);
  return v;
}

/// Times of the field "gaint"; none where it is absent or has no elements.
Knots timesOfGain(const mxArray* value) {
  const host::Doubles times = host::realDoubles(host::field(value, "gaint"), "the integrator's gaint");
  const Knots knots(times.data, 1, static_cast<int>(std::min<std::size_t>(times.count, 0x7fffffff)));  // no gain has more pages
  const int wrong = knots.firstWrong();
  if (wrong < knots.count()) {
    host::refuse("the integrator's gaint must be finite and ascend (two equal times are a jump), got %g in place %d", times.data[wrong],
                 wrong + 1);
  }
  if (!knots.spanIsFinite()) {
    host::refuse("the integrator's gaint goes from %g to %g: the time between them is beyond all numbers", knots.first(), knots.last());
  }
  return knots;
}

/// Data of the field "gain", n x n, and with times n x n x times; null where it is absent or has no elements. Refuses what the kernel could
/// not take.
const double* fullGain(const mxArray* value, int n, int times) {
  const mxArray* field = host::field(value, "gain");
  if (host::count(field) == 0) {
    if (times > 0) host::refuse("the integrator's gaint has %d times for the pages of a gain, and there is no gain", times);
    return nullptr;
  }
  const host::Doubles gain = host::realDoubles(field, "the integrator's gain");
  if (times > 0 && (host::rows(field) != n || host::cols(field) != static_cast<long long>(n) * times)) {
    host::refuse("the integrator's gain must be %d x %d x %d, a page for each time of gaint, got %s", n, n, times,
                 host::describe(field).text);
  }
  if (times == 0 && (host::rows(field) != n || host::cols(field) != n)) {
    host::refuse("the integrator's gain must be %d x %d, a row and a column for each row of r, got %s", n, n, host::describe(field).text);
  }
  for (std::size_t k = 0; k < gain.count; ++k) {
    if (std::isfinite(gain.data[k])) continue;
    const auto rows = static_cast<std::size_t>(n);
    host::refuse("the integrator's gain must be finite, got %g in row %zu, column %zu", gain.data[k], k % rows + 1, k / rows + 1);
  }
  return gain.data;
}

std::int32_t saveColumns(std::size_t values, std::int32_t rowsEach) {
  if (rowsEach <= 0) return 0;
  return static_cast<std::int32_t>(std::min<std::size_t>(values / static_cast<std::size_t>(rowsEach), 0x7fffffff));
}

}  // namespace

void chandleDiagNewmark::initCpt() {
  const SparseView load = fullField(val, "r", "r");
  N = load.rows;
  Nb = load.cols - 2;
  r = {load.pr, load.prLen};

  const SparseView table = fullField(val, "tft", "tft");
  NT = table.cols;
  tft = table.pr;
  NFNL = NSave = NFNLSave = jSave = jFNLSave = 0;
  snapshot = store = saveTimes = def = storeTimes = storeDef = {};
  if (table.rows != Nb + 1) host::fail(fixed::loadTableRows);

  const SparseView numbers = fullField(val, "data", "data");
  if (static_cast<long long>(numbers.rows) * numbers.cols != 6) host::fail(fixed::dataLength);
  data = numbers.pr;

  const mxArray* ioptArray = host::field(val, "iopt");
  if (ioptArray && !mxIsInt32(ioptArray)) host::fail(fixed::offsetsNotInt32);
  iopt = host::int32s(ioptArray, "iopt").data;

  if (Nb < 0) host::refuse("r must have 2 columns or more (one not read, loads, gain), got %d", load.cols);
  gain = r.data ? r.data + static_cast<std::ptrdiff_t>(N) * (Nb > 0 ? 2 : 1) : nullptr;
  gainTimes = timesOfGain(val);
  gainFull = fullGain(val, N, gainTimes.count());
}

void chandleDiagNewmark::bindWork(const mxArray* mem) {
  const mxArray* work = host::field(mem, "uva");
  uva = host::realDoubles(host::field(work, "uva"), "the work array uva");
  if (work && uva.count < 4 * static_cast<std::size_t>(N)) host::fail(fixed::workArraySize);
  const mxArray* target = host::field(work, "FNL");
  snapshot = host::realDoubles(target, "the force store's snapshot");
  NFNL = host::rows(target);
}

void chandleDiagNewmark::bindOutputs(const mxArray* out) {
  jSave = 0;
  const mxArray* times = host::field(out, "data");
  saveTimes = host::doubles(times, "the save times");
  NSave = saveTimes ? host::rows(times) : 0;
  const mxArray* saved = host::field(out, "def");
  def = host::realDoubles(saved, "the output def");
  Ndef = saved ? host::rows(saved) : N;
  NSave = std::min({NSave, saveColumns(def.count, N), saveColumns(def.count, Ndef)});
  jFNLSave = 0;
  const mxArray* storeOut = host::field(out, "FNL");
  const mxArray* storeOutTimes = host::field(storeOut, "data");
  storeTimes = host::doubles(storeOutTimes, "the save times of FNL");
  NFNLSave = storeTimes ? host::rows(storeOutTimes) : 0;
  storeDef = host::realDoubles(host::field(storeOut, "def"), "the output def of FNL");
}

void chandleDiagNewmark::initCb(const ROr& c, const mxArray* model, const mxArray* mem, const mxArray* out, chandle** list, int nh) {
  bindWork(mem);
  const mxArray* modelStore = host::field(model, "FNL");
  store = {c.FNL, c.fnlLen};
  NFNL = modelStore ? std::min(NFNL, host::rows(modelStore)) : 0;
  bindOutputs(out);
  if (c.a == c.v && c.v) host::fail(fixed::identicalVA);
  if (c.v == c.u && c.u) host::fail(fixed::identicalVU);
  if (c.a == c.u && c.u) host::fail(fixed::identicalAU);
  forLive(list, nh, [this](const chandle& h, int) {
    if (h.type == HandleType::nonlinear && h.stateEnd() > static_cast<std::int64_t>(Ndef) + 1) host::fail(fixed::statesTooLong);
  });
}

void chandleDiagNewmark::checkRun(const ROr& c, chandle** list, int nh) {
  const long long length = std::max(N, Ndef);
  checkLength(c.uLen, length, "u", "one for each mode or row of out.def, whose columns are the save times");
  checkLength(c.vLen, length, "v", "one for each mode or row of out.def, whose columns are the save times");
  checkLength(c.aLen, length, "a", "one for each mode or row of out.def, whose columns are the save times");
  if (!uva && N > 0) host::refuse("mem.uva.uva, the work array, must hold %lld values, got none", 4LL * N);
  if (uva.count < 3 * static_cast<std::size_t>(Ndef) + static_cast<std::size_t>(N)) host::fail(fixed::workArraySize);
  const std::size_t forceLen = uva.count - 3 * static_cast<std::size_t>(Ndef);
  fmod = uva.data ? uva.data + 3 * static_cast<std::ptrdiff_t>(Ndef) : nullptr;
  NFNL = static_cast<std::int32_t>(std::min(static_cast<std::size_t>(NFNL), store.count));
  coefficients = {data[0], data[1], data[2], data[3], data[4]};
  WrittenArray written[writtenArrays];
  findWritten(c, written);
  const StepTimes times{tft + Nb + 1, Nb + 1, steps(), written, writtenArrays};
  checkGainTimes(times);
  giveTimes(list, nh, 2, times);
  checkAll(list, nh, 2, c, forceLen);  // the integrator is the first
  checkGain(times);
  takeAllWork(list, nh, {fmod, forceLen});
  plan(c, list, nh);
}

}  // namespace quarn
