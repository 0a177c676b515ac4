// Projections of a sparse matrix on dense bases against Eigen, MKL and OpenBLAS on one thread.
#include <memory>

#include "grid_matrix.h"
#include "groups.h"
#include "harness.h"
#include "openblas.h"
#include "sparse/projection_kernels.h"

#ifdef QUARN_BENCH_EIGEN
#include <Eigen/Sparse>
#endif
#ifdef QUARN_WITH_MKL
#include <mkl_cblas.h>
#include <mkl_service.h>
#include <mkl_spblas.h>
#endif

namespace quarn::bench {

namespace {

struct Problem {
  GridMatrix g;
  std::size_t n;
  std::size_t cols;
  std::vector<double> re;
  std::vector<double> im;
  DenseBase base(bool isComplex) const { return {re.data(), isComplex ? im.data() : nullptr, n, cols}; }
  SparseLines lines() const { return {g.ir.data(), g.jc.data(), g.pr.data()}; }
};

template <class Work>
void add(Case& c, const char* name, std::vector<double>& out, Work work) {
  c.programs.push_back({name, work, [&out, work] {
                          work();
                          return out;
                        }});
}

void oneSided(const Problem& p) {
  std::vector<double> out(p.cols * p.n);
  Case c{"projections",
         "c<-a'*b, " + std::to_string(p.cols) + " columns",
         p.g.n,
         static_cast<double>(p.cols * p.g.pr.size()),
         "entry",
         1e-12,
         {}};
  add(c, "quarn", out, [&] { projectLines(out.data(), p.base(false), p.lines(), p.n); });
#ifdef QUARN_BENCH_EIGEN
  using Sparse = Eigen::SparseMatrix<double, Eigen::ColMajor, int>;
  const Eigen::Map<const Sparse> a(p.g.n, p.g.n, static_cast<Eigen::Index>(p.g.pr.size()), p.g.jc.data(), p.g.ir.data(), p.g.pr.data());
  const Eigen::Map<const Eigen::MatrixXd> t(p.re.data(), p.g.n, static_cast<Eigen::Index>(p.cols));
  Eigen::Map<Eigen::MatrixXd> result(out.data(), static_cast<Eigen::Index>(p.cols), p.g.n);
  add(c, "Eigen", out, [&] {
    Eigen::setNbThreads(1);
    result.noalias() = t.transpose() * a;
  });
#endif
  run(c);
}

void realForm(const Problem& p) {
  std::vector<double> out(p.cols * p.cols);
  std::vector<double> work(bilinearWork(p.cols, p.cols));
  Case c{"projections",
         "abc, " + std::to_string(p.cols) + " columns",
         p.g.n,
         static_cast<double>(p.cols * p.g.pr.size() + p.n * p.cols * p.cols),
         "multiply-add",
         1e-9,
         {}};
  add(c, "quarn", out, [&] { bilinearForms(out.data(), nullptr, p.base(false), p.base(false), p.lines(), p.n, work.data()); });
  std::vector<double> kt(p.n * p.cols);
#ifdef QUARN_BENCH_EIGEN
  using Sparse = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;
  const Eigen::Map<const Sparse> a(p.g.n, p.g.n, static_cast<Eigen::Index>(p.g.pr.size()), p.g.jc.data(), p.g.ir.data(), p.g.pr.data());
  const Eigen::Map<const Eigen::MatrixXd> t(p.re.data(), p.g.n, static_cast<Eigen::Index>(p.cols));
  Eigen::Map<Eigen::MatrixXd> product(kt.data(), p.g.n, static_cast<Eigen::Index>(p.cols));
  Eigen::Map<Eigen::MatrixXd> result(out.data(), static_cast<Eigen::Index>(p.cols), static_cast<Eigen::Index>(p.cols));
  add(c, "Eigen", out, [&] {
    Eigen::setNbThreads(1);
    product.noalias() = a * t;
    result.noalias() = t.transpose() * product;
  });
#endif
#ifdef QUARN_WITH_MKL
  auto* jc = const_cast<int*>(p.g.jc.data());
  sparse_matrix_t m = nullptr;
  mkl_sparse_d_create_csr(&m, SPARSE_INDEX_BASE_ZERO, p.g.n, p.g.n, jc, jc + 1, const_cast<int*>(p.g.ir.data()),
                          const_cast<double*>(p.g.pr.data()));
  const int n = p.g.n;
  const int cols = static_cast<int>(p.cols);
  const matrix_descr general{SPARSE_MATRIX_TYPE_GENERAL, SPARSE_FILL_MODE_FULL, SPARSE_DIAG_NON_UNIT};
  mkl_set_num_threads(1);
  mkl_sparse_set_mm_hint(m, SPARSE_OPERATION_NON_TRANSPOSE, general, SPARSE_LAYOUT_COLUMN_MAJOR, cols, 100000);
  mkl_sparse_optimize(m);
  add(c, "MKL", out, [&, n, cols] {
    mkl_set_num_threads(1);
    mkl_sparse_d_mm(SPARSE_OPERATION_NON_TRANSPOSE, 1.0, m, general, SPARSE_LAYOUT_COLUMN_MAJOR, p.re.data(), cols, n, 0.0, kt.data(), n);
    cblas_dgemm(CblasColMajor, CblasTrans, CblasNoTrans, cols, cols, n, 1.0, p.re.data(), n, kt.data(), n, 0.0, out.data(), cols);
  });
#endif
  std::vector<double> blasWork;
  if (openblasThere()) {
    blasWork.resize(p.n * (p.cols + 8));
    add(c, "OpenBLAS", out, [&] { openblasForm(out.data(), p.g, p.re, blasWork); });
  }
  run(c);
#ifdef QUARN_WITH_MKL
  mkl_sparse_destroy(m);
#endif
}

void complexForm(const Problem& p) {
  std::vector<double> out(2 * p.cols * p.cols);
  std::vector<double> work(bilinearWork(p.cols, p.cols));
  Case c{"projections",
         "abc complex, " + std::to_string(p.cols) + " columns",
         p.g.n,
         static_cast<double>(2 * p.cols * p.g.pr.size() + 4 * p.n * p.cols * p.cols),
         "multiply-add",
         1e-9,
         {}};
  add(c, "quarn", out,
      [&] { bilinearForms(out.data(), out.data() + p.cols * p.cols, p.base(true), p.base(true), p.lines(), p.n, work.data()); });
#ifdef QUARN_BENCH_EIGEN
  using Sparse = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;
  const Eigen::Map<const Sparse> a(p.g.n, p.g.n, static_cast<Eigen::Index>(p.g.pr.size()), p.g.jc.data(), p.g.ir.data(), p.g.pr.data());
  Eigen::MatrixXcd t(p.g.n, static_cast<Eigen::Index>(p.cols));
  for (std::size_t i = 0; i < p.re.size(); ++i) t.data()[i] = {p.re[i], p.im[i]};
  Eigen::MatrixXcd kt(t.rows(), t.cols());
  Eigen::MatrixXcd form(t.cols(), t.cols());
  add(c, "Eigen", out, [&] {
    Eigen::setNbThreads(1);
    kt.noalias() = a * t;
    form.noalias() = t.transpose() * kt;
    const auto cols = static_cast<Eigen::Index>(p.cols);
    Eigen::Map<Eigen::MatrixXd>(out.data(), cols, cols) = form.real();
    Eigen::Map<Eigen::MatrixXd>(out.data() + p.cols * p.cols, cols, cols) = form.imag();
  });
#endif
  run(c);
}

}  // namespace

void benchProjections() {
  for (const int lines : {1'000, 10'000, 100'000, 1'000'000}) {
    if (quick() && lines > 1000) break;
    for (const std::size_t cols : {1, 10, 50, 200}) {
      if (static_cast<double>(lines) * static_cast<double>(cols * cols) > 2.6e9) continue;
      Problem p{gridMatrix(27, lines), 0, cols, {}, {}};
      p.n = static_cast<std::size_t>(p.g.n);
      p.re = wave(p.n * cols, 1.0);
      p.im = wave(p.n * cols, 7.5);
      oneSided(p);
      realForm(p);
      complexForm(p);
    }
  }
}

}  // namespace quarn::bench
