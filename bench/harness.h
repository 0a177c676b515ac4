// Timing of programs that compute the same numbers: checked against each other; the best repetition counts.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quarn::bench {

/// One way to do the work of a case.
struct Program {
  std::string name;
  std::function<void()> run;                     ///< the timed work, once
  std::function<std::vector<double>()> numbers;  ///< the work once from a fresh start, and what it computed; may be empty for a limit
  bool threaded = false;  ///< timed by the clock; others by the processor time of their thread, which other processes do not stretch
  std::function<void()> release{};  ///< frees what the work has allocated; called in cases with threaded programs only
};

/// Programs that do the same work on the same data. The first one's numbers are the reference.
struct Case {
  std::string group;
  std::string variant;
  long long size;
  double units;      ///< pieces of work in one run (bytes, mode steps, queries ...)
  std::string unit;  ///< their name
  double tolerance;  ///< largest accepted difference, relative to the largest reference number; 0: the same bits
  std::vector<Program> programs;
};

/// A smoke test: smallest sizes, one short repetition.
bool quick();

/// Checks the numbers of all programs (a difference is reported and makes finish() fail), times them, notes the results.
void run(const Case& c);

/// Notes a result that was measured elsewhere: seconds a run, with further numbers by name.
void note(const std::string& group, const std::string& variant, long long size, const std::string& program, double seconds,
          const std::vector<std::pair<std::string, double>>& more);

/// Keeps the compiler from dropping the computation of a value.
void use(const void* p);

}  // namespace quarn::bench
