#include "grid_matrix.h"

#include <cmath>
#include <cstdlib>

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

std::vector<double> wave(std::size_t n, double first) {
  std::vector<double> x(n);
  for (std::size_t i = 0; i < n; ++i) x[i] = std::sin(first + static_cast<double>(i));
  return x;
}

}  // namespace quarn::bench
