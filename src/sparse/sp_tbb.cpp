#include "sparse/sp_tbb.h"

#include <oneapi/tbb/blocked_range.h>
#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/parallel_for.h>
#include <oneapi/tbb/task_arena.h>

#include <atomic>

#include "sparse/blas.h"
#include "sparse/task_order.h"

namespace quarn {

namespace {

constexpr int threads = 8;
constexpr int grain = 1000;        // lines; a range of at most that many is never split
constexpr int fewEntries = 30000;  // sooner done on the calling thread than workers are woken (some 10 microseconds)

std::atomic<bool> workersStarted{false};

using Lines = tbb::blocked_range<int>;

/// Body of the parallel loop: five borrowed pointers, copied into every task.
struct iSparseMatVec {
  const double* val;
  double* y;
  const double* x;
  const int* jc;
  const int* ir;

  void operator()(const Lines& lines) const {
    for (int i = lines.begin(); i < lines.end(); ++i) {
      const int k0 = jc[i];
      y[i] += cblas_ddoti(jc[i + 1] - k0, val + k0, ir + k0, x);
    }
  }
};

/// The same for indices that nothing has looked at yet: while the line is in cache anyway.
struct TestedSparseMatVec {
  iSparseMatVec product;
  unsigned xLen;
  std::atomic<int>* badLine;

  void operator()(const Lines& lines) const {
    for (int i = lines.begin(); i < lines.end(); ++i) {
      const int k0 = product.jc[i];
      const int k1 = product.jc[i + 1];
      unsigned outside = 0;
      for (int k = k0; k < k1; ++k) outside |= static_cast<unsigned>(product.ir[k]) >= xLen ? 1U : 0U;
      if (outside != 0) {
        badLine->store(i, std::memory_order_relaxed);
      } else {
        product.y[i] += cblas_ddoti(k1 - k0, product.val + k0, product.ir + k0, product.x);
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
  if (!all.is_divisible() || entries < fewEntries) {
    body(all);
    return;
  }
  workersStarted.store(true, std::memory_order_relaxed);
  tbb::global_control control(tbb::global_control::max_allowed_parallelism, threads);
  tbb::task_arena arena(threads);
  arena.execute([&] { runTasks(all, body); });
}

}  // namespace

void SparseMatVec(double* y, const double* x, const double* val, const int* ir, const int* jc, int n) {
  if (!val || n <= 0) return;
  forLines(n, jc[n] - jc[0], iSparseMatVec{val, y, x, jc, ir});
}

int SparseMatVecTested(double* y, const double* x, const double* val, const int* ir, const int* jc, int n, unsigned xLen) {
  if (!val || n <= 0) return -1;
  std::atomic<int> badLine{-1};
  forLines(n, jc[n] - jc[0], TestedSparseMatVec{{val, y, x, jc, ir}, xLen, &badLine});
  return badLine.load();
}

void endSparseWorkers() noexcept {
  if (!workersStarted.exchange(false)) return;
  tbb::task_scheduler_handle handle{tbb::attach{}};
  tbb::finalize(handle, std::nothrow);
}

}  // namespace quarn
