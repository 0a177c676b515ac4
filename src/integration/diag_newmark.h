// Newmark integrator in diagonal (modal) coordinates.
//
// N. M. Newmark, A method of computation for structural dynamics, J. Eng. Mech. Div. ASCE 85 (1959). Each step predicts u and v
// with the acceleration of the step before, evaluates all forces once at the predictor, and corrects u, v and a with a gain
// per mode that the caller has computed: gain = 1 / (M/(beta dt^2) + gamma C/(beta dt) + K). Linear models get textbook Newmark;
// nonlinear forces enter as they are at the predictor (one correction a step, no iteration).
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/chandle.h"
#include "host/arrays.h"
#include "integration/knots.h"
#include "integration/newmark_fused.h"

namespace quarn {

/// Value: a struct with
///   "r"    N x (Nb+2), full: columns 1 to Nb (from 0) are the modal load vectors, column 2 is the gain, column 0 is not read.
///          For Nb > 1 the gain is the second load column as well. With Nb = 0 there are two columns and the last is the gain.
///   "tft"  (Nb+1) x NT: times in row 0, loads below. The step to column j+1 uses the loads of column j.
///   "data" 6 values: dt, (1/2-beta) dt^2, (1-gamma) dt, gamma/(beta dt), 1/(beta dt^2), and the current time (written at each step)
///   "iopt" optional int32: the first is the offset in the model's "FNL" at which the step's loads are stored
///   "gain" optional N x N, full: takes the place of the gain column; see full_gain.h. With "gaint" N x N x P
///   "gaint" optional, P ascending times: page k of "gain" is the gain of a step that ends at time k, between two it is linear
class chandleDiagNewmark final : public chandle {
 public:
  /// Reads the value, and refuses a "gain" or "gaint" of another class, size or order. Raises KORV:quarn:Invalid "Full r expected",
  /// "Inconsistent Nb & NT", "Inconsistent data length", KORV:quarn:conform "iopt must be int32".
  void initCpt() override;

  /// Binds the arrays of one run. mem: struct with "uva" = struct with "uva" (work array, 4*N values or more, layout: copies of u, v, a
  /// of Ndef values each, then the modal force) and optional "FNL" (snapshot of the force store). out: struct with optional "data" (save
  /// times), "def" (Ndef rows, a column a save time), "FNL" = struct with "data" and "def". All are written in place during the run. Raises
  /// KORV:quarn:Invalid "wrong uva size", "Identical v & a", "Identical v & u", "Identical a & u", "iu+Nistate too large".
  void initCb(const ROr& c, const mxArray* model, const mxArray* mem, const mxArray* out, chandle** list, int nh);

  /// Refuses what the run would read or write outside its arrays. For the force handles as well.
  void checkRun(const ROr& c, chandle** list, int nh);

  /// One step, from time column j to j+1, with the nh force handles of list.
  void doStep(chandle** list, int nh, int j, ROr c);

  /// All steps, with the results of doStep for each. checkRun must have passed.
  void run(chandle** list, int nh, const ROr& c);

  int steps() const { return NT > 0 ? NT - 1 : 0; }

 private:
  void bindWork(const mxArray* mem);
  void bindOutputs(const mxArray* out);
  void plan(const ROr& c, chandle** list, int nh);
  void foldDiagonals(const ROr& c, chandle** list, int nh);
  void findClosing(chandle** list, int nh);
  static constexpr int rangesOfRun = 15;
  int findRanges(const ROr& c, Range* ranges) const;
  static bool apart(const Range* ranges, int written);
  static constexpr int writtenArrays = 9;
  void findWritten(const ROr& c, WrittenArray* arrays) const;
  void checkGain(const StepTimes& times) const;
  void checkGainTimes(const StepTimes& times) const;
  void correct(double t, const ROr& c);
  int runUndisturbed(int j, const ROr& c);
  int runUnseen(chandle** list, int nh, int j, ROr c);
  void enterStep(int j, ROr& c);
  void enterUnseen(int j, ROr& c) const;
  void storeLoads(int j, const ROr& c) const;
  void beginModes(int j, const ROr& c);
  void finishCopies(const ROr& c);
  void finishForces(const ROr& c);
  void addForces(chandle** list, int nh, const ROr& c);
  void endHandles();
  bool saveDue(double t) const { return jSave < NSave && t >= saveTimes.data[jSave]; }
  bool storeSaveDue(double t) const {
    if (jFNLSave >= NFNLSave) return false;
    const auto place = static_cast<std::size_t>(jFNLSave);
    return t > storeTimes.data[place] || (place < saveTimes.count && t == saveTimes.data[place]);
  }
  const double* loadsAt(int column) const { return tft + static_cast<std::ptrdiff_t>(Nb + 1) * column + 1; }
  double time(int column) const { return tft[static_cast<std::ptrdiff_t>(Nb + 1) * column]; }
  double* columnFor(double t);
  void save(double t, const ROr& c);
  void saveStore(double t);

  std::int32_t N = 0;         ///< modes: rows of "r"
  std::int32_t Nb = 0;        ///< load inputs: columns of "r" - 2
  std::int32_t NT = 0;        ///< time points: columns of "tft"
  std::int32_t NFNL = 0;      ///< values of the force store saved at a save time
  std::int32_t NFNLSave = 0;  ///< rows of the time vector of the force store's output
  std::int32_t NSave = 0;     ///< save times of "def"
  std::int32_t jSave = 0;     ///< cursors into the save times
  std::int32_t jFNLSave = 0;
  std::int32_t Ndef = 0;  ///< rows of "def"
  const int* iopt = nullptr;
  host::Doubles r;
  const double* gain = nullptr;      ///< one value a mode
  const double* gainFull = nullptr;  ///< pages of N x N; null: the modes are corrected by themselves
  Knots gainTimes;                   ///< of the pages; none where there is one page for all steps
  double* between = nullptr;         ///< 2*N values for a gain between pages, in host memory of the current call
  const double* tft = nullptr;
  double* data = nullptr;
  host::Doubles uva;
  double* fmod = nullptr;    ///< modal force, after the three copies in uva
  host::Doubles snapshot;    ///< mem's copy of the force store
  host::Doubles store;       ///< the model's "FNL"
  host::Doubles saveTimes;   ///< out."data"
  host::Doubles def;         ///< out."def"
  host::Doubles storeTimes;  ///< out."FNL"."data"
  host::Doubles storeDef;    ///< out."FNL"."def"
  NewmarkCoefficients coefficients{};

  // How the steps of a run are done; see plan().
  bool onePass = false;  ///< copies, predictor, load and folded diagonals in one pass over the modes
  int folded = 0;        ///< handles at the head of the list whose forces are in that pass
  DiagonalForces diagonals;
  chandle** closing = nullptr;  ///< handles that have something to do when a step ends, in host memory of the current call
  int closingCount = 0;
  bool undisturbed = false;  ///< nothing but loads and folded diagonals acts, and nothing looks at the work array between the steps
  bool unseen = false;       ///< other forces act, none of which looks at the copies in the work array
};

}  // namespace quarn
