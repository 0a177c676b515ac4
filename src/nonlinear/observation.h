// What an element's law sees: the values c * u and c * v, written to the first pages of unl and vnl.
#pragma once

#include <cstdint>

#include "sparse/sparse_view.h"

namespace quarn {

/// The pages that an observation writes, length values each; null where there is none.
struct Pages {
  double* unl;
  double* vnl;
  int length;
};

/// How the lines of an observation matrix are summed in a run, recognised once. The view itself is looked at where its lines differ only:
/// of many small elements one after the other, most of a step is waiting for memory.
class Observation {
 public:
  /// apart: neither the state nor the pages share memory with the values of c or with each other, but for unl with vnl. Then the pages are
  /// assigned, line after line.
  void plan(const SparseView& c, const Pages& pages, bool apart, bool pagesOverlap);

  /// vnl = c * v and unl = c * u, in this order. c, pages: those of plan.
  void observe(const SparseView& c, const Pages& pages, const double* u, const double* v) const {
    if (way == Way::first) {
      if (pages.vnl) observeFirst(v, pages.vnl, pages.length);
      if (pages.unl) observeFirst(u, pages.unl, pages.length);
    } else if (way == Way::block) {
      observeBlock(pages, u, v);
    } else {
      observeLines(c, pages, u, v);
    }
  }

 private:
  enum class Way : std::uint8_t {
    product,  ///< a page of zeros, then the product
    first,    ///< the first line has one entry, the others have none
    singles,  ///< each line has at most one entry
    runs,     ///< some lines are full
    block     ///< all are, with the same indices
  };

  void observeFirst(const double* x, double* page, int lines) const {
    page[0] = 0.0 + values[0] * x[first];
    if (lines == 1) return;
    page[1] = 0.0;  // most laws with a state have one; what follows is a call of memset
    for (int i = 2; i < lines; ++i) page[i] = 0.0;
  }
  void observeLines(const SparseView& c, const Pages& pages, const double* u, const double* v) const;
  void observeBlock(const Pages& pages, const double* u, const double* v) const;
  void planLines(const SparseView& c);

  const double* values = nullptr;  ///< of the first entry; of the block
  int first = 0;                   ///< its index
  int length = 0;                  ///< entries of each line of the block
  Way way = Way::product;
  bool together = false;  ///< unl and vnl are observed in one pass over c
  int* runs = nullptr;    ///< full lines that are summed together, host memory of the current call
};

}  // namespace quarn
