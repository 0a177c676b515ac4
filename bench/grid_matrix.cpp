#include "grid_matrix.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <random>
#include <utility>

namespace quarn::bench {

namespace {

/// Coupling of two neighbours, 0 for none: the Laplace operator, or a product of three line elements (-1, 4, -1).
double coupling(int entries, int dx, int dy, int dz) {
  const int steps = std::abs(dx) + std::abs(dy) + std::abs(dz);
  if (entries == 7) return steps == 0 ? 6.0 : steps == 1 ? -1.0 : 0.0;
  return (dx == 0 ? 4.0 : -1.0) * (dy == 0 ? 4.0 : -1.0) * (dz == 0 ? 4.0 : -1.0);
}

}  // namespace

GridMatrix gridMatrix(int entries, int lines) {
  const int unknowns = entries == 81 ? 3 : 1;
  constexpr double block[3][3] = {{2.0, 0.5, 0.25}, {0.5, 3.0, 0.5}, {0.25, 0.5, 4.0}};
  const int m = std::max(2, static_cast<int>(std::lround(std::cbrt(static_cast<double>(lines) / unknowns))));
  GridMatrix g;
  g.n = m * m * m * unknowns;
  g.pr.reserve(static_cast<std::size_t>(g.n) * static_cast<std::size_t>(entries));
  g.ir.reserve(g.pr.capacity());
  g.jc.push_back(0);
  const auto inside = [m](int x) { return x >= 0 && x < m; };
  for (int line = 0; line < g.n; ++line) {
    const int node = line / unknowns;
    const int a = line % unknowns;
    const int x = node % m;
    const int y = node / m % m;
    const int z = node / (m * m);
    for (int dz = -1; dz <= 1; ++dz) {
      for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
          const double c = coupling(entries, dx, dy, dz);
          if (c == 0.0 || !inside(x + dx) || !inside(y + dy) || !inside(z + dz)) continue;
          for (int b = 0; b < unknowns; ++b) {
            g.ir.push_back((node + dx + m * (dy + m * dz)) * unknowns + b);
            g.pr.push_back(unknowns == 1 ? c : c * block[a][b]);
          }
        }
      }
    }
    g.jc.push_back(static_cast<int>(g.pr.size()));
  }
  return g;
}

GridMatrix irregular(const GridMatrix& g, int unknowns) {
  constexpr int run = 64;
  const int nodes = g.n / unknowns;
  std::vector<int> old(static_cast<std::size_t>(nodes));
  std::iota(old.begin(), old.end(), 0);
  std::mt19937 random(1);
  for (int first = 0; first < nodes; first += run) std::shuffle(old.begin() + first, old.begin() + std::min(nodes, first + run), random);
  std::vector<int> now(old.size());
  for (int node = 0; node < nodes; ++node) now[static_cast<std::size_t>(old[static_cast<std::size_t>(node)])] = node;
  GridMatrix m;
  m.n = g.n;
  m.jc.push_back(0);
  std::vector<std::pair<int, double>> entries;
  for (int line = 0; line < g.n; ++line) {
    const auto from = static_cast<std::size_t>(old[static_cast<std::size_t>(line / unknowns)] * unknowns + line % unknowns);
    entries.clear();
    for (auto k = static_cast<std::size_t>(g.jc[from]); k < static_cast<std::size_t>(g.jc[from + 1]); ++k) {
      entries.emplace_back(now[static_cast<std::size_t>(g.ir[k] / unknowns)] * unknowns + g.ir[k] % unknowns, g.pr[k]);
    }
    std::sort(entries.begin(), entries.end());
    for (const auto& [column, value] : entries) {
      m.ir.push_back(column);
      m.pr.push_back(value);
    }
    m.jc.push_back(static_cast<int>(m.ir.size()));
  }
  return m;
}

std::vector<double> wave(std::size_t n, double first) {
  std::vector<double> x(n);
  for (std::size_t i = 0; i < n; ++i) x[i] = std::sin(first + static_cast<double>(i));
  return x;
}

}  // namespace quarn::bench
