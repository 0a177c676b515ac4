// The scheduler's threads.
#pragma once

#include <oneapi/tbb/task_arena.h>

namespace quarn {

/// Threads that share a product, the calling one included, whatever the number of processors.
constexpr int workerThreads = 8;

/// The arena where products run, one for all of them: if each product made and destroyed its own, 18 KB would be lost every time, and the
/// scheduler's end could wait for ever. Null where the system does not let this process have the threads (a limit of a batch system,
/// say): the scheduler would end the host then.
tbb::task_arena* workers();

/// Ends the worker threads, if any were started. For the module's exit: unloading the module while they live crashes the host.
void endSparseWorkers() noexcept;

}  // namespace quarn
