#include "sparse/sp_tbb.h"

#include <oneapi/tbb/blocked_range.h>
#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/parallel_for.h>

#include <algorithm>
#include <atomic>

#include "sparse/largest.h"
#include "sparse/line_sums.h"
#include "sparse/task_order.h"
#include "sparse/worker_threads.h"

namespace quarn {

namespace {

constexpr int grain = 1000;         // lines; a range of at most that many is never split
constexpr int batchEntries = 1024;  // whose indices are tested before their lines are summed

using Lines = tbb::blocked_range<int>;

/// Body of the parallel loop: five borrowed pointers, copied into every task.
struct iSparseMatVec {
  const double* val;
  double* y;
  const double* x;
  const int* jc;
  const int* ir;

  void operator()(const Lines& lines) const {
    // Copies: a store to y might change what this points to, for all the compiler knows.
    const int* const starts = jc;
    const int* const rows = ir;
    const double* const values = val;
    const double* const vector = x;
    double* const sums = y;
    for (int i = lines.begin(); i < lines.end(); ++i) {
      const int k0 = starts[i];
      sums[i] += lineSum(starts[i + 1] - k0, values + k0, rows + k0, vector);
    }
  }
};

bool within(const int* ir, int n, unsigned length) { return n <= 0 || largestOf(ir, n) < length; }

/// The same for indices that nothing has looked at yet: those of some lines at a time, which are in cache for the product then.
struct TestedSparseMatVec {
  iSparseMatVec product;
  unsigned xLen;
  int batch;  // lines
  std::atomic<int>* badLine;

  void operator()(const Lines& lines) const {
    for (int first = lines.begin(); first < lines.end(); first += batch) {
      const int end = std::min(first + batch, lines.end());
      const int k0 = product.jc[first];
      if (within(product.ir + k0, product.jc[end] - k0, xLen)) {
        product(Lines(first, end));
      } else {
        eachLine(first, end);
      }
    }
  }

  /// The first of all bad lines stays, whatever the order that threads find them in.
  void noteBad(int line) const {
    int known = badLine->load();
    while ((known < 0 || line < known) && !badLine->compare_exchange_weak(known, line)) continue;
  }

  void eachLine(int first, int end) const {
    for (int i = first; i < end; ++i) {
      if (within(product.ir + product.jc[i], product.jc[i + 1] - product.jc[i], xLen)) {
        product(Lines(i, i + 1));
      } else {
        noteBad(i);
      }
    }
  }
};

template <class Body>
void runTasks(const Lines& all, const Body& body) {
  tbb::task_group_context context;
#ifdef __SANITIZE_THREAD__
  const TaskOrder order;
  tbb::parallel_for(all, Ordered<Body>{body, order}, tbb::auto_partitioner(), context);
#else
  tbb::parallel_for(all, body, tbb::auto_partitioner(), context);
#endif
}

template <class Body>
void forLines(int n, int entries, const Body& body) {
  const Lines all(0, n, grain);
  tbb::task_arena* arena = all.is_divisible() && entries >= parallelEntries ? workers() : nullptr;
  if (!arena) {
    body(all);
    return;
  }
  tbb::global_control control(tbb::global_control::max_allowed_parallelism, workerThreads);
  arena->execute([&] { runTasks(all, body); });
}

}  // namespace

void SparseMatVec(double* y, const double* x, const double* val, const int* ir, const int* jc, int n) {
  if (!val || n <= 0) return;
  forLines(n, jc[n] - jc[0], iSparseMatVec{val, y, x, jc, ir});
}

int SparseMatVecTested(double* y, const double* x, const double* val, const int* ir, const int* jc, int n, unsigned xLen) {
  if (!val || n <= 0) return -1;
  std::atomic<int> badLine{-1};
  const int entries = jc[n] - jc[0];
  const int batch = std::clamp(batchEntries / std::max(entries / n, 1), 1, batchEntries / 4);
  forLines(n, entries, TestedSparseMatVec{{val, y, x, jc, ir}, xLen, batch, &badLine});
  return badLine.load();
}

}  // namespace quarn
