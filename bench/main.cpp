// quarn_bench [--quick] OUT.json GROUP...   times the groups, inside an interpreter of the host, and writes their results.
// Ends with status 1 where programs that are compared computed different numbers.
#include <benchmark/benchmark.h>
#include <octave/oct.h>

#include <octave/interpreter.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "groups.h"
#include "harness.h"
#include "results.h"

namespace {

void startTimer(bool quick) {
  std::vector<const char*> flags{"quarn_bench"};
  if (quick) {
    flags.insert(flags.end(), {"--benchmark_min_time=0.0005", "--benchmark_repetitions=1"});
  } else {
    flags.insert(flags.end(), {"--benchmark_enable_random_interleaving=true"});
  }
  int n = static_cast<int>(flags.size());
  benchmark::Initialize(&n, const_cast<char**>(flags.data()));
}

}  // namespace

int main(int argc, char** argv) {
  int first = 1;
  if (first < argc && std::strcmp(argv[first], "--quick") == 0) {
    quarn::bench::setQuick(true);
    ++first;
  }
  if (argc < first + 2) {
    std::fprintf(stderr, "usage: quarn_bench [--quick] OUT.json GROUP...\n");
    return 2;
  }
  octave::interpreter interpreter;
  interpreter.initialize_history(false);
  interpreter.initialize_load_path(false);
  interpreter.initialize();
  startTimer(quarn::bench::quick());
  for (int k = first + 1; k < argc; ++k) {
    if (!quarn::bench::runGroup(argv[k])) {
      std::fprintf(stderr, "quarn_bench: no group %s\n", argv[k]);
      return 2;
    }
  }
  const bool same = quarn::bench::writeResults(argv[first]);
  std::fflush(nullptr);
  std::_Exit(same ? 0 : 1);  // the interpreter has nothing to tidy up
}
