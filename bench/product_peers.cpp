#include "product_peers.h"

#include <oneapi/tbb/blocked_range.h>
#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/parallel_for.h>
#include <oneapi/tbb/task_arena.h>

#ifdef QUARN_BENCH_EIGEN
#include <Eigen/Sparse>
#endif
#ifdef QUARN_WITH_MKL
#include <mkl_service.h>
#include <mkl_spblas.h>
#endif

#include <stdexcept>

namespace quarn::bench {

namespace {

#ifdef QUARN_WITH_MKL
void require(sparse_status_t status) {
  if (status != SPARSE_STATUS_SUCCESS) throw std::runtime_error("MKL refused a sparse matrix");
}

/// A handle of MKL's inspector-executor interface, told what it will be used for.
std::shared_ptr<sparse_matrix> mklMatrix(const GridMatrix& g, int threads) {
  auto* jc = const_cast<int*>(g.jc.data());
  sparse_matrix_t m = nullptr;
  require(mkl_sparse_d_create_csr(&m, SPARSE_INDEX_BASE_ZERO, g.n, g.n, jc, jc + 1, const_cast<int*>(g.ir.data()),
                                  const_cast<double*>(g.pr.data())));
  const matrix_descr general{SPARSE_MATRIX_TYPE_GENERAL, SPARSE_FILL_MODE_FULL, SPARSE_DIAG_NON_UNIT};
  mkl_set_num_threads(threads);
  require(mkl_sparse_set_mv_hint(m, SPARSE_OPERATION_NON_TRANSPOSE, general, 100000));
  require(mkl_sparse_optimize(m));
  return {m, [](sparse_matrix_t handle) { mkl_sparse_destroy(handle); }};
}

void addMkl(std::vector<ProductPeer>& peers, const GridMatrix& g, const std::string& name, int threads) {
  // MKL's copies take nearly twice the memory of the matrix.
  const auto m = std::make_shared<std::shared_ptr<sparse_matrix>>();
  peers.push_back({name,
                   [m, &g, threads](const double* x, double* y) {
                     if (!*m) *m = mklMatrix(g, threads);
                     const matrix_descr general{SPARSE_MATRIX_TYPE_GENERAL, SPARSE_FILL_MODE_FULL, SPARSE_DIAG_NON_UNIT};
                     mkl_set_num_threads(threads);
                     mkl_sparse_d_mv(SPARSE_OPERATION_NON_TRANSPOSE, 1.0, m->get(), general, x, 1.0, y);
                   },
                   threads > 1, [m] { m->reset(); }});
}
#endif

#ifdef QUARN_BENCH_EIGEN
using Matrix = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;

void addEigen(std::vector<ProductPeer>& peers, const GridMatrix& g, const std::string& name, int threads) {
  peers.push_back({name,
                   [&g, threads](const double* x, double* y) {
                     Eigen::setNbThreads(threads);
                     const Eigen::Map<const Matrix> a(g.n, g.n, static_cast<Eigen::Index>(g.pr.size()), g.jc.data(), g.ir.data(),
                                                      g.pr.data());
                     Eigen::Map<Eigen::VectorXd>(y, g.n) += a * Eigen::Map<const Eigen::VectorXd>(x, g.n);
                   },
                   threads != 1});
}
#endif

}  // namespace

std::vector<ProductPeer> productPeers(const GridMatrix& g) {
  std::vector<ProductPeer> peers;
  (void)g;
#ifdef QUARN_WITH_MKL
  static const int all = mkl_get_max_threads();
  addMkl(peers, g, "MKL, 1 thread", 1);
  addMkl(peers, g, "MKL, threaded", all);
#endif
#ifdef QUARN_BENCH_EIGEN
  addEigen(peers, g, "Eigen, 1 thread", 1);
  addEigen(peers, g, "Eigen, threaded", 0);
#endif
  return peers;
}

void Triad::run() {
  if (a.empty()) {
    a.assign(size, 0.0);
    b.assign(size, 1.0);
    c.assign(size, 2.0);
  }
  const auto body = [this](const tbb::blocked_range<std::size_t>& range) {
    for (std::size_t i = range.begin(); i < range.end(); ++i) a[i] = b[i] + 3.0 * c[i];
  };
  const tbb::blocked_range<std::size_t> all(0, a.size(), 20000);
  if (!all.is_divisible()) return body(all);
  tbb::global_control control(tbb::global_control::max_allowed_parallelism, 8);
  tbb::task_arena arena(8);
  arena.execute([&] { tbb::parallel_for(all, body); });
}

}  // namespace quarn::bench
