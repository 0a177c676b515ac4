// Linked into the program that plays MATLAB: a oneTBB (or TBB) of the host's own with live workers from the start to the end of the
// process, as MATLAB has one. scripts/release runs the tests of the module with it.
#include <tbb/parallel_for.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

class Busy {
 public:
  Busy() : thread([this] { work(); }) {}
  ~Busy() {
    stop = true;
    thread.join();
    std::printf("the host's own scheduler ran %ld tasks\n", done.load());
  }

 private:
  void work() {
    while (!stop) {
      tbb::parallel_for(0, 64, [this](int /*task*/) { ++done; });
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }
  std::atomic<bool> stop{false};
  std::atomic<long> done{0};
  std::thread thread;
};

const Busy busy;

}  // namespace
