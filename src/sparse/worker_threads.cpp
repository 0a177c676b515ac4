#include "sparse/worker_threads.h"

#include <oneapi/tbb/global_control.h>
#include <unistd.h>

#include <mutex>
#include <thread>

namespace quarn {

namespace {

/// Process that started the workers; 0 where none did. Its children, which fork makes, have none and cannot get any.
pid_t owner = 0;

/// Starts as many threads as the scheduler will, which wait for one another, and ends them.
bool threadsToBeHad() {
  std::mutex waiting;
  std::thread probes[workerThreads - 1];
  bool all = true;
  {
    const std::lock_guard<std::mutex> hold(waiting);
    try {
      for (std::thread& probe : probes) probe = std::thread([&waiting] { const std::lock_guard<std::mutex> pass(waiting); });
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
  if (owner == 0 && threadsToBeHad()) owner = getpid();
  return owner == getpid() ? &arena() : nullptr;
}

void endSparseWorkers() noexcept {
  if (owner != getpid()) return;
  owner = 0;
  arena().terminate();
  tbb::task_scheduler_handle handle{tbb::attach{}};
  tbb::finalize(handle, std::nothrow);
}

}  // namespace quarn
