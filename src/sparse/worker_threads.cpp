#include "sparse/worker_threads.h"

#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/task_scheduler_observer.h>
#include <sys/mman.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

namespace quarn {

namespace {

/// Process that started the workers; 0 where none did. Its children, which fork makes, have none and cannot get any.
pid_t owner = 0;

/// Address space that is held while this is alive, if it is available; nothing is written into it.
class Reserved {
 public:
  explicit Reserved(std::size_t n) : bytes(n), place(mmap(nullptr, n, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)) {}
  ~Reserved() {
    if (*this) munmap(place, bytes);
  }
  Reserved(const Reserved&) = delete;
  Reserved& operator=(const Reserved&) = delete;
  explicit operator bool() const { return place != MAP_FAILED; }

 private:
  std::size_t bytes;
  void* place;
};

/// What the scheduler's threads take besides their stacks, where the address space is limited (ulimit -v): the C library gives each a heap
/// of 64 MB and asks for twice as much to begin with, the scheduler has tables. The scheduler ends the process for a stack that it does
/// not get.
constexpr std::size_t heaps = std::size_t{workerThreads} * 64 << 20;
constexpr std::size_t tables = std::size_t{32} << 20;

/// Starts as many threads as the scheduler will, which wait for one another, and ends them.
bool threadsAvailable() {
  const Reserved reserved(heaps + tables);
  std::mutex waiting;
  std::thread probes[workerThreads - 1];
  bool all = static_cast<bool>(reserved);
  {
    const std::lock_guard<std::mutex> hold(waiting);
    try {
      for (std::thread& probe : probes) {
        if (all) probe = std::thread([&waiting] { const std::lock_guard<std::mutex> pass(waiting); });
      }
    } catch (...) {  // no thread, or no memory for one
      all = false;
    }
  }
  for (std::thread& probe : probes) {
    if (probe.joinable()) probe.join();
  }
  return all;
}

tbb::task_arena& arena() {
  static tbb::task_arena shared(workerThreads);
  return shared;
}

/// The scheduler's threads that are in the arena. A product ends when its last piece has told so, which is before the thread of that piece
/// has come back out of the module's code.
class Inside final : public tbb::task_scheduler_observer {
 public:
  explicit Inside(tbb::task_arena& where) : task_scheduler_observer(where) { observe(true); }
  void on_scheduler_entry(bool isWorker) override { threads += isWorker ? 1 : 0; }
  void on_scheduler_exit(bool isWorker) override { threads -= isWorker ? 1 : 0; }

  /// Waits until all have left, and until none is in the functions above. They leave as soon as they find no work.
  void awaitNone() {
    for (int k = 0; k < mostWaits && threads > 0; ++k) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    observe(false);
  }

 private:
  static constexpr int mostWaits = 10000;
  std::atomic<int> threads{0};
};

/// Made with the workers. A child of the process has no threads to wait for and leaves it alone.
Inside* inside = nullptr;

}  // namespace

tbb::task_arena* workers() {
  if (owner == 0 && threadsAvailable()) {
    // Who is to be told of the threads makes the arena: with all of them, as a product does.
    const tbb::global_control control(tbb::global_control::max_allowed_parallelism, workerThreads);
    inside = new Inside(arena());
    owner = getpid();
  }
  return owner == getpid() ? &arena() : nullptr;
}

void endSparseWorkers() noexcept {
  if (owner != getpid()) return;
  owner = 0;
  // The scheduler's end waits for its threads, but where another module uses it too it does not end here.
  inside->awaitNone();
  delete inside;
  inside = nullptr;
  // The handle keeps the scheduler alive until the arena is gone: another module of the process may have let go of it already, and the
  // arena would be the last to hold it, whose end does not wait for the threads.
  tbb::task_scheduler_handle handle{tbb::attach{}};
  arena().terminate();
  tbb::finalize(handle, std::nothrow);
}

}  // namespace quarn
