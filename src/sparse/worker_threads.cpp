#include "sparse/worker_threads.h"

#include <oneapi/tbb/global_control.h>
#include <sys/mman.h>
#include <unistd.h>

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

}  // namespace

tbb::task_arena* workers() {
  if (owner == 0 && threadsAvailable()) owner = getpid();
  return owner == getpid() ? &arena() : nullptr;
}

void endSparseWorkers() noexcept {
  if (owner != getpid()) return;
  owner = 0;
  // The handle keeps the scheduler alive until the arena is gone: another module of the process may have let go of it already, and the
  // arena would be the last to hold it, whose end does not wait for the threads.
  tbb::task_scheduler_handle handle{tbb::attach{}};
  arena().terminate();
  tbb::finalize(handle, std::nothrow);
}

}  // namespace quarn
