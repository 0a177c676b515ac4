// Symmetric matrices of a three-dimensional grid, as line-compressed arrays.
#pragma once

#include <string>
#include <vector>

namespace quarn::bench {

struct GridMatrix {
  std::string stencil;
  int n = 0;  ///< lines
  std::vector<int> jc;
  std::vector<int> ir;
  std::vector<double> pr;
  double bytes() const { return 12.0 * static_cast<double>(pr.size()) + 20.0 * n; }  ///< least traffic of a product y += A*x
};

/// About lines lines: entries = 7: Laplace operator; 27: trilinear bricks, one unknown a node; 81: bricks with three unknowns a node.
GridMatrix gridMatrix(int entries, int lines);

/// sin(first), sin(first + 1), ...
std::vector<double> wave(std::size_t n, double first);

}  // namespace quarn::bench
