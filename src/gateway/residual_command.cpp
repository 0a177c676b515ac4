#include "gateway/residual_command.h"

#include <algorithm>

#include "base/fixed_errors.h"
#include "gateway/structures/nl_structures.h"
#include "handles/handle_list.h"
#include "host/errors.h"
#include "host/user_code.h"
#include "integration/korv_residual.h"
#include "sparse/line_checks.h"
#include "sparse/phi1tmphi2.h"
#include "sparse/sparse_view.h"

namespace quarn {

namespace {

void addHandles(const ROr& c, host::Doubles r, const mxArray* handles) {
  chandle** list = newHandleList(handles);
  const int n = fillVectP(list, handles);
  addResiduals(list, n, c, r);
}

/// Half the quadratic form of a sparse matrix.
class Energy {
 public:
  /// Refuses what value would read outside the arrays.
  Energy(const mxArray* a, const char* name, const double* vector, std::size_t length, const char* vectorName, int rows)
      : matrix(sparseView(a, name)), x(vector), N(rows) {
    if (!x || !matrix.pr || N <= 0) {
      matrix = {};
      return;
    }
    if (!matrix.ir) host::fail(fixed::sparseOnly);
    checkLength(length, N, vectorName, "one for each row of u");
    checkLines(matrix, N, length, name, vectorName);
  }

  double value() const {
    double form = 0.0;
    if (matrix.pr) phi1tmphi2_mkl(x, nullptr, x, nullptr, matrix.pr, matrix.ir, matrix.jc, N, &form, nullptr);
    return 0.5 * form;
  }

 private:
  SparseView matrix;
  const double* x;
  int N;
};

struct Model {
  const mxArray* K;   ///< cell {M, C, K}
  const mxArray* NL;  ///< list of nonlinear elements; null where there is none
};

Model readModel(const mxArray* model) {
  const bool matrices = mxIsCell(model);
  if (!matrices && !mxIsStruct(model)) {
    host::refuse("the model must be a chandle vector, a cell {M, C, K} or a struct with a field \"K\", got %s", host::describe(model).text);
  }
  const mxArray* K = matrices ? model : host::field(model, "K");
  if (host::cols(K) <= 2) host::fail(fixed::fewMatrices);
  if (!mxIsCell(K)) host::refuse("model.K must be a cell {M, C, K}, got %s", host::describe(K).text);
  const mxArray* NL = matrices ? nullptr : host::field(model, "NL");
  return {K, NL && mxIsCell(NL) ? NL : nullptr};
}

}  // namespace

void commandResidual(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  constexpr int named = 8;  // arguments that a law's function is given
  const mxArray* callback[named] = {};
  std::copy_n(prhs, std::min(nrhs, named), callback);
  for (const int lookedInto : {2, 6}) {
    if (nrhs >= named && mxIsStruct(prhs[lookedInto])) callback[lookedInto] = host::forUserCode(prhs[lookedInto]);
  }
  const ROr c = getROr(nrhs, prhs);
  const host::Doubles r = pmatDoubles(prhs[1], "r");
  if (host::isClass(prhs[2], "chandle")) {
    addHandles(c, r, prhs[2]);
    return;
  }
  const Model model = readModel(prhs[2]);
  const bool energies = nlhs == 2;

  // Everything is looked at before the first write.
  const KorvTerm terms[] = {{-2, c, model.K, r}, {-3, c, model.K, r}, {-1, c, model.K, r}};
  const Energy kinetic(energies ? host::matrixCell(model.K, 0) : nullptr, "the mass matrix", c.v, c.vLen, "v", c.N);
  const Energy strain(energies ? host::matrixCell(model.K, 2) : nullptr, "the stiffness matrix", c.u, c.uLen, "u", c.N);
  const int checked = model.NL ? checkNlStructures(c, r, model.NL, std::min(nrhs, named), callback) : 0;

  for (const KorvTerm& term : terms) term.add();
  if (energies) {
    plhs[0] = mxCreateDoubleScalar(kinetic.value());
    plhs[1] = mxCreateDoubleScalar(strain.value());
  }
  if (model.NL) addNlStructures(c, r, model.NL, std::min(nrhs, named), callback, checked);
}

}  // namespace quarn
