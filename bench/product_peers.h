// Other programs' sparse products, and the bandwidth triad.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "grid_matrix.h"

namespace quarn::bench {

struct ProductPeer {
  std::string name;
  std::function<void(const double* x, double* y)> product;  ///< y += A*x; the first call may copy A
  bool threaded;
  std::function<void()> release{};  ///< frees that copy
};

/// Those that were found when the benchmarks were built. They borrow g.
std::vector<ProductPeer> productPeers(const GridMatrix& g);

/// a = b + s*c over arrays that move bytes bytes (8 written, 16 read for each element), on the product's scheduler.
class Triad {
 public:
  explicit Triad(double bytes) : size(static_cast<std::size_t>(bytes / 24.0) + 1) {}
  void run();

 private:
  std::size_t size;
  std::vector<double> a;
  std::vector<double> b;
  std::vector<double> c;
};

inline std::shared_ptr<Triad> makeTriad(double bytes) { return std::make_shared<Triad>(bytes); }

}  // namespace quarn::bench
