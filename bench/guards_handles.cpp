#include <array>

#include "elements.h"
#include "grid_matrix.h"
#include "guards.h"
#include "harness.h"
#include "integration/korv_residual.h"
#include "modal_run.h"
#include "newmark_loops.h"
#include "values.h"

namespace quarn::bench {

namespace {

/// A call of the residual with a cell of three diagonal matrices, 10 degrees of freedom; the checks are part of the views there.
void matrixCell() {
  std::vector<int> jc;
  for (int i = 0; i <= 10; ++i) jc.push_back(i);
  mxArray* K = mxCreateCellMatrix(1, 3);
  for (int k = 0; k < 3; ++k) mxSetCell(K, k, lines(10, 10, jc, {jc.begin(), jc.end() - 1}, std::vector<double>(10, 1.0), false));
  mxArray* x = matrix(10, 1);
  std::vector<double> r(10);
  const mxArray* in[] = {nullptr, x, K, x, x, x};
  const ROr c = getROr(6, in);
  const host::Doubles out{r.data(), r.size()};
  const auto terms = [&] { return std::array<KorvTerm, 3>{KorvTerm(-2, c, K, out), KorvTerm(-3, c, K, out), KorvTerm(-1, c, K, out)}; };
  const auto addAll = [](const std::array<KorvTerm, 3>& all) {
    for (const KorvTerm& t : all) t.add();
  };
  const auto known = terms();
  parts("cell of matrices", 1, false,
        {{"whole", [&] { addAll(terms()); }}, {"views", [&] { use(terms().data()); }}, {"arithmetic", [&] { addAll(known); }}});
}

/// A call of the residual with a list of handles, from the lookup in the registry on.
class HandleList {
 public:
  HandleList(int n, std::vector<chandle*> all) : list(std::move(all)), x(matrix(static_cast<std::size_t>(n), 1)), r(mxGetM(x)) {
    for (std::size_t i = 0; i < r.size(); ++i) mxGetPr(x)[i] = 0.01 * static_cast<double>(i);
    const mxArray* in[] = {nullptr, x, x, x, x, x};
    context = getROr(6, in);
    views();
    check();
    for (chandle* h : list) h->takeWork({});
  }
  void forget() {
    for (chandle* h : list) h->set_val(h->type, h->val);
  }
  void views() {
    for (chandle* h : list) h->initCpt();
  }
  void check() {
    for (chandle* h : list) h->checkSizes(context, r.size());
  }
  void arithmetic() {
    for (chandle* h : list) h->Residual(context, r.data());
  }

 private:
  std::vector<chandle*> list;
  mxArray* x;
  std::vector<double> r;
  ROr context;
};

/// known: the checks of indices are done, as they are from the second call with a registered handle on.
void handleCall(const std::string& variant, int n, const std::vector<chandle*>& handles, bool known) {
  HandleList list(n, handles);
  const auto check = [&] {
    if (!known) list.forget();
    list.check();
  };
  parts(variant, static_cast<long long>(handles.size()), false,
        {{"whole",
          [&] {
            list.views();
            check();
            list.arithmetic();
          }},
         {"checks before", check},
         {"views", [&] { list.views(); }},
         {"arithmetic", [&] { list.arithmetic(); }}});
}

std::vector<chandle*> springs(int count) {
  std::vector<chandle*> all;
  for (int e = 0; e < count; ++e) all.push_back(element("Power", 1, 100, e % 95));
  return all;
}

void integratorCall(int count) {
  const Modes m = spreadModes(100);
  const LoopState loop(m);
  ModalRun call(m, wave(100, 0.0));
  call.add(diagonalHandle(1, loop.k));
  call.add(diagonalHandle(3, loop.c));
  for (chandle* h : springs(count)) call.add(h);
  call.start();
  const auto check = [&] { call.check(); };
  parts("integrator, 100 steps", count, false,
        {{"whole",
          [&] {
            call.bind();
            check();
            call.run();
          }},
         {"checks before", check},
         {"views", [&] { call.bind(); }},
         {"arithmetic", [&] { call.run(); }}});
}

}  // namespace

void benchHandleGuards() {
  matrixCell();
  for (const int count : {1, 10, 100}) {
    handleCall("elements of a cell", 100, springs(count), false);
    handleCall("registered elements", 100, springs(count), true);
    std::vector<chandle*> matrices;
    for (int k = 0; k < count; ++k) matrices.push_back(diagonalHandle(1, std::vector<double>(10, 1.0)));
    handleCall("registered matrices", 10, matrices, true);
    integratorCall(count);
  }
}

}  // namespace quarn::bench
