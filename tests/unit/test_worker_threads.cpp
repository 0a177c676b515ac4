// The end of the scheduler's threads, as at the module's exit.
#include <gtest/gtest.h>
#include <oneapi/tbb/global_control.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "sparse/worker_threads.h"

namespace quarn {
namespace {

// A thread that was still in the code of a module when it was unloaded ended the host, where another module kept the scheduler.
TEST(WorkerThreads, HaveLeftTheModuleWhereAnotherOneKeepsTheScheduler) {
  tbb::task_scheduler_handle other{tbb::attach{}};
  for (int k = 0; k < 3; ++k) {
    tbb::task_arena* arena = workers();
    ASSERT_NE(arena, nullptr);
    std::atomic<bool> begun{false};
    std::atomic<bool> ended{false};
    arena->enqueue([&] {
      begun = true;
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      ended = true;
    });
    while (!begun) std::this_thread::yield();
    endSparseWorkers();
    EXPECT_TRUE(ended);
  }
  tbb::finalize(other, std::nothrow);
}

}  // namespace
}  // namespace quarn
