// The forces of an element on their way to the residual: r += b' * snl.
#pragma once

#include <cstdint>

#include "host/arrays.h"
#include "sparse/dense_lines.h"
#include "sparse/sparse_view.h"

namespace quarn {

/// How the lines of a command matrix are added in a run, recognised once. As with Observation, the view itself is looked at where it must
/// be.
class Scatter {
 public:
  /// r: what the forces will be added to; snl: the forces, total values. c: the observation matrix, whose values are in cache already,
  /// where nothing that a run writes lies on them; else null. Takes host memory of the current call.
  void plan(const SparseView& b, const SparseView* c, host::Doubles r, host::Doubles snl);

  /// r += b' * snl in the sense of Add_Mt_ub; nothing without forces or without b. begunAtZero: as in ROr. b, snl: those of plan.
  void add(const SparseView& b, const double* snl, double* r, int begunAtZero) {
    if (columns > begunAtZero || way > Way::row) {
      addLines(b, snl, r, begunAtZero);
    } else if (way == Way::first) {
      addFirst(snl[0], r);
    } else if (way == Way::row || snl[0] != 0.0) {
      addDenseRow(length, values, snl[0], r + first);
    }
  }

 private:
  enum class Way : std::uint8_t {
    first,    ///< the first line has one entry, the others have none
    line,     ///< the first line is full, the others have no entries
    row,      ///< a full matrix of one row
    singles,  ///< each line has at most one entry, in a column of its own
    block,    ///< all lines are full with the same indices, or empty
    touched,  ///< the sums of the few columns that have entries, in a work vector, then added
    sums,     ///< those of all columns
    none
  };

  /// As in a sparse axpy, a force of zero adds nothing, whatever it is multiplied with.
  void addFirst(double force, double* r) const {
    if (force != 0.0) r[first] += 0.0 + force * values[0];
  }
  void addLines(const SparseView& b, const double* snl, double* r, int begunAtZero);
  void addDirectly(const SparseView& b, const double* snl, double* r) const;
  bool direct() const { return way == Way::first || way == Way::singles || way == Way::line || way == Way::block; }
  Way directWay(const SparseView& b);

  const double* values = nullptr;  ///< of b, or those of c where they are the same; of way first and line those of the line
  int first = 0;                   ///< index of the first entry
  int length = 0;                  ///< entries of each full line
  int columns = 0;
  Way way = Way::none;
  double* work = nullptr;  ///< a value for each column, host memory of the current call; zero between the steps in way touched
};

}  // namespace quarn
