#include "harness.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <thread>

#include "results.h"

namespace quarn::bench {

namespace {

/// Whether a run came to nothing: `error_occurred` in Google Benchmark up to 1.7, `skipped` from 1.8 on.
template <class Run>
auto cameToNothing(const Run& r, int /*first*/) -> decltype(static_cast<bool>(r.error_occurred)) {
  return r.error_occurred;
}
template <class Run>
auto cameToNothing(const Run& r, long /*second*/) -> decltype(static_cast<bool>(r.skipped)) {
  return static_cast<bool>(r.skipped);
}

/// Best and median time of the repetitions of each benchmark, by name.
class Collector final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) {
      if (r.run_type != Run::RT_Iteration || cameToNothing(r, 0)) continue;
      const std::string& name = r.run_name.function_name;
      times[name].push_back(threaded[name] ? r.GetAdjustedRealTime() : r.GetAdjustedCPUTime());
    }
  }
  std::map<std::string, bool> threaded;
  std::map<std::string, std::vector<double>> times;
};

double median(std::vector<double> x) {
  std::sort(x.begin(), x.end());
  return x[x.size() / 2];
}

/// Largest difference relative to the largest reference number; infinite where sizes differ or a number is not one.
double difference(const std::vector<double>& wanted, const std::vector<double>& got) {
  if (wanted.size() != got.size()) return std::numeric_limits<double>::infinity();
  double largest = 0.0;
  double off = 0.0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    largest = std::max(largest, std::fabs(wanted[i]));
    const double d = std::fabs(wanted[i] - got[i]);
    if (!(d <= std::numeric_limits<double>::max())) return std::numeric_limits<double>::infinity();
    off = std::max(off, d);
  }
  return off == 0.0 ? 0.0 : off / largest;
}

/// Threads need both cores at once, which a machine with other work on it grants now and then, for a moment: many short repetitions.
int repetitions(const Program& p) {
  p.run();
  const auto start = std::chrono::steady_clock::now();
  p.run();
  const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  const double most = p.threaded ? 100.0 : 9.0;
  return static_cast<int>(std::clamp(0.25 / std::max(took, 0.001), 3.0, most));
}

/// Compares the numbers of a program with the reference, which are the first ones that come.
void compareNumbers(const Case& c, const Program& p, std::vector<double>& wanted, std::map<std::string, double>& off) {
  if (!p.numbers) return;
  const std::vector<double> got = p.numbers();
  if (wanted.empty()) wanted = got;
  off[p.name] = difference(wanted, got);
  if (off[p.name] <= c.tolerance) return;
  std::fprintf(stderr, "DIFFERENT NUMBERS: %s/%s/%lld: %s is off by %g, accepted %g\n", c.group.c_str(), c.variant.c_str(), c.size,
               p.name.c_str(), off[p.name], c.tolerance);
  fail();
}

void enter(const Program& p, Collector& collector) {
  collector.threaded[p.name] = p.threaded;
  auto* timed = benchmark::RegisterBenchmark(p.name.c_str(), [&p](benchmark::State& state) {
    for (auto _ : state) p.run();
  });
  timed->UseRealTime()->Unit(benchmark::kSecond);
  if (!quick()) timed->MinTime(p.threaded ? 0.001 : 0.02)->Repetitions(repetitions(p));
}

void timeEntered(Collector& collector) {
  benchmark::RunSpecifiedBenchmarks(&collector, ".*");
  benchmark::ClearRegisteredBenchmarks();
}

/// The threads of OpenMP programs spin for up to 200 ms after their work and take the cores from whatever is timed next. Where a case has
/// threaded programs they are timed one after another, each when the workers of those before it sleep; others take turns.
void rest() {
  if (!quick()) std::this_thread::sleep_for(std::chrono::milliseconds(220));
}

/// And it takes the system a tenth of a second to spread the threads of a program that wakes them over the cores.
void warmUp(const Program& p) {
  const auto start = std::chrono::steady_clock::now();
  while (p.threaded && !quick() && std::chrono::steady_clock::now() - start < std::chrono::milliseconds(100)) p.run();
}

}  // namespace

void use(const void* p) { benchmark::DoNotOptimize(p); }

void run(const Case& c) {
  Collector collector;
  std::vector<double> wanted;
  std::map<std::string, double> off;
  const bool inTurns = std::none_of(c.programs.begin(), c.programs.end(), [](const Program& p) { return p.threaded; });
  for (const Program& p : c.programs) {
    compareNumbers(c, p, wanted, off);
    // Two rounds: whether the threads of one come to lie on all cores is a matter of chance.
    for (int round = 0; round < 2 && !inTurns; ++round) {
      rest();
      warmUp(p);
      enter(p, collector);
      timeEntered(collector);
    }
    if (p.release && !inTurns) p.release();
  }
  if (inTurns) {
    for (const Program& p : c.programs) enter(p, collector);
    timeEntered(collector);
  }
  for (const Program& p : c.programs) {
    const auto& times = collector.times.at(p.name);
    const double best = *std::min_element(times.begin(), times.end());
    std::vector<std::pair<std::string, double>> more{{"median", median(times)}, {"units", c.units}};
    if (off.count(p.name)) more.emplace_back("difference", off.at(p.name));
    note(c.group, c.variant, c.size, p.name, best, more);
    std::printf("%-11s %-22s %8lld  %-26s %12.1f ns %10.4f ns/%s\n", c.group.c_str(), c.variant.c_str(), c.size, p.name.c_str(), best * 1e9,
                best / c.units * 1e9, c.unit.c_str());
  }
  std::fflush(stdout);
}

}  // namespace quarn::bench
