#include "equations.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <memory>

#include "elements.h"
#include "groups.h"
#include "harness.h"
#include "newmark_loops.h"

namespace quarn::bench {

namespace {

double seconds() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

/// Shortest of some runs of the work.
template <class Work>
double best(Work work) {
  double least = 1e300;
  double spent = 0.0;
  for (int k = 0; k < (quick() ? 1 : 5) && spent < 2.0; ++k) {
    const double start = seconds();
    work();
    const double took = seconds() - start;
    spent += took;
    least = std::min(least, took);
  }
  return least;
}

/// Largest error of the displacements at the end, relative to the largest displacement.
double errorOf(const Equation& e, const std::vector<double>& y, const std::vector<double>& reference) {
  double largest = 0.0;
  double off = 0.0;
  for (std::size_t i = 0; i < e.modes.w.size(); ++i) {
    largest = std::max(largest, std::fabs(reference[i]));
    off = std::max(off, std::fabs(y[i] - reference[i]));
  }
  return off / largest;
}

void report(const Equation& e, const std::string& program, int step, double time, double error) {
  note("equations", e.name, step, program, time, {{"error", error}});
  std::printf("equations   %-22s %8d  %-26s %12.3f ms  error %.2e\n", e.name.c_str(), step, program.c_str(), 1e3 * time, error);
  std::fflush(stdout);
}

void quarnSteps(const Equation& e, int steps, const std::vector<double>& reference) {
  Modes m = e.modes;
  m.dt = e.end / steps;
  std::vector<double> loads;
  for (int j = 1; j <= steps; ++j) loads.push_back(e.load(m.dt * j));
  ModalRun run(m, loads, e.frictions);
  LoopState diagonal(m);
  diagonal.k.resize(m.w.size() + static_cast<std::size_t>(e.frictions));
  diagonal.c.resize(diagonal.k.size());
  run.add(diagonalHandle(1, diagonal.k));
  run.add(diagonalHandle(3, diagonal.c));
  for (chandle* h : e.elements(m.dt)) run.add(h);
  const auto work = [&] {
    run.start();
    for (std::size_t i = 0; i < m.w.size(); ++i) run.acceleration()[i] = -m.shape[i] * e.load(0.0);
    run.run();
  };
  const double time = best(work);
  report(e, "quarn", steps, time, errorOf(e, run.state(), reference));
}

void oneEquation(const Equation& e, const std::vector<int>& steps) {
  std::vector<Solver> solvers;
  addBoost(solvers);
  addGsl(solvers);
  addSundials(solvers);
  if (solvers.empty()) return;
  const std::vector<double> reference = solvers.front().solve(e, quick() ? 1e-6 : 1e-12);
  std::vector<std::pair<std::string, double>> values;
  for (std::size_t i = 0; i < e.modes.w.size(); ++i) values.emplace_back("x" + std::to_string(i), reference[i]);
  note("reference", e.name, 0, solvers.front().name, 0.0, values);
  for (const int n : steps) {
    if (quick() && n > 1000) break;
    quarnSteps(e, n, reference);
  }
  for (const Solver& s : solvers) {
    for (int digits = 2; digits <= (quick() ? 2 : 9); ++digits) {
      std::vector<double> y;
      const double time = best([&] { y = s.solve(e, std::pow(10.0, -digits)); });
      const double error = errorOf(e, y, reference);
      report(e, s.name, digits, time, error);
      if (time > 2.0 || error < 1e-7) break;  // smaller tolerances would take minutes, or no table asks for them
    }
  }
}

}  // namespace

void benchEquations() {
  oneEquation(duffing(), {300, 1'000, 3'000, 10'000, 30'000, 100'000, 300'000, 1'000'000});
  oneEquation(frictionChain(), {300, 1'000, 3'000, 10'000, 30'000, 100'000, 300'000});
  if (!quick()) oneEquation(beamWithGap(), {300, 1'000, 3'000, 10'000, 30'000, 100'000, 300'000});
}

}  // namespace quarn::bench
