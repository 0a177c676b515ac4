// Symmetric matrices of a three-dimensional grid, as line-compressed arrays.
#pragma once

#include <vector>

namespace quarn::bench {

struct GridMatrix {
  int n = 0;  ///< lines
  std::vector<int> jc;
  std::vector<int> ir;
  std::vector<double> pr;
  double bytes() const { return 12.0 * static_cast<double>(pr.size()) + 20.0 * n; }  ///< least traffic of a product y += A*x
};

/// About lines lines: entries = 7: Laplace operator; 27: trilinear bricks, one unknown a node; 81: bricks with three unknowns a node.
GridMatrix gridMatrix(int entries, int lines);

/// The same with the nodes numbered in another order, by chance within runs of 64 nodes. In a regular grid the entries of neighbouring
/// lines point to neighbouring columns; in the matrices of real structures they do not.
GridMatrix irregular(const GridMatrix& g, int unknowns);

/// sin(first), sin(first + 1), ...
std::vector<double> wave(std::size_t n, double first);

}  // namespace quarn::bench
