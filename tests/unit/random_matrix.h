// Random line-compressed matrices with fixed seeds.
#pragma once

#include <random>
#include <vector>

namespace quarn::test {

struct Lines {
  std::vector<int> jc{0};
  std::vector<int> ir;
  std::vector<double> pr;
};

inline Lines randomLines(int lines, int columns, int mostEntries, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> entries(0, mostEntries);
  std::uniform_int_distribution<int> index(0, columns - 1);
  std::normal_distribution<double> number;
  Lines m;
  for (int i = 0; i < lines; ++i) {
    for (int k = entries(random); k > 0; --k) {
      m.ir.push_back(index(random));
      m.pr.push_back(number(random));
    }
    m.jc.push_back(static_cast<int>(m.ir.size()));
  }
  m.ir.push_back(0);  // never read; keeps data() valid
  m.pr.push_back(0);
  return m;
}

inline std::vector<double> randomVector(int n, unsigned seed) {
  std::mt19937 random(seed);
  std::normal_distribution<double> number;
  std::vector<double> x(static_cast<std::size_t>(n));
  for (double& value : x) value = number(random);
  return x;
}

/// A line's sum in the order that line_sums.h states, said once more: eight partial sums, combined crosswise.
inline double statedSum(int n, const double* pr, const int* ir, const double* x) {
  double s[8] = {};
  for (int k = 0; k < n; ++k) s[k % 8] += pr[k] * x[ir[k]];
  return ((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7]));
}

}  // namespace quarn::test
