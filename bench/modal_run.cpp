#include "modal_run.h"

#include <algorithm>

#include "values.h"

namespace quarn::bench {

namespace {

std::vector<double> filled(std::size_t n, double x) { return std::vector<double>(n, x); }

std::vector<double> join(std::initializer_list<std::vector<double>> parts) {
  std::vector<double> all;
  for (const auto& p : parts) all.insert(all.end(), p.begin(), p.end());
  return all;
}

}  // namespace

NewmarkCoefficients Modes::coefficients() const {
  return {dt, (0.5 - beta) * dt * dt, (1.0 - gamma) * dt, gamma / (beta * dt), 1.0 / (beta * dt * dt)};
}

std::vector<double> Modes::gains() const {
  std::vector<double> g;
  for (const double omega : w) {
    g.push_back(1.0 / (1.0 / (beta * dt * dt) + gamma * 2.0 * damping * omega / (beta * dt) + omega * omega));
  }
  return g;
}

Modes spreadModes(int n) {
  Modes m{n, 1e-3, 0.25, 0.5, {}, {}};
  for (int i = 0; i < n; ++i) {
    m.w.push_back(10.0 + 990.0 * i / n);
    m.shape.push_back(i % 2 == 0 ? -1.0 : 0.7);
  }
  return m;
}

ModalRun::ModalRun(const Modes& m, const std::vector<double>& loads, int states, const std::vector<double>& gain)
    : modes(m), steps(static_cast<int>(loads.size())) {
  const auto n = static_cast<std::size_t>(m.n);
  const std::size_t rows = n + static_cast<std::size_t>(states);
  u = matrix(rows, 1);
  v = matrix(rows, 1);
  a = matrix(rows, 1);
  std::vector<double> table;
  for (std::size_t j = 0; j <= loads.size(); ++j) {
    table.push_back(static_cast<double>(j) * m.dt);
    table.push_back(j < loads.size() ? loads[j] : 0.0);
  }
  const NewmarkCoefficients k = m.coefficients();
  value = scalarStruct({{"r", matrix(n, 3, join({filled(n, 0.0), m.shape, m.gains()}))},
                        {"tft", matrix(2, loads.size() + 1, table)},
                        {"data", matrix(6, 1, {k.dt, k.uFromA, k.vFromA, k.vFromD, k.aFromD, 0.0})},
                        {"gain", gain.empty() ? matrix(0, 0) : matrix(n, n, gain)}});
  mem = scalarStruct({{"uva", scalarStruct({{"uva", matrix(4 * rows, 1)}})}});
  out = scalarStruct({{"def", matrix(rows, 1)}});
  model = scalarStruct({{"K", matrix(0, 0)}});
  integrator = new chandleDiagNewmark;
  integrator->set_val(2000, value);
  const mxArray* in[] = {nullptr, mem, model, u, v, a};
  context = getROr(6, in);
}

void ModalRun::bind() {
  integrator->initCpt();
  for (chandle* h : handles) {
    h->set_val(h->type, h->val);
    h->initCpt();
  }
  integrator->initCb(context, model, mem, out, handles.data(), static_cast<int>(handles.size()));
}

void ModalRun::check() {
  const std::size_t rows = mxGetM(u);
  for (chandle* h : handles) h->checkSizes(context, rows);
}

void ModalRun::start() {
  for (mxArray* x : {u, v, a}) std::fill_n(mxGetPr(x), mxGetM(x), 0.0);
  bind();
  integrator->checkRun(context, handles.data(), static_cast<int>(handles.size()));
}

void ModalRun::run() {
  const int nh = static_cast<int>(handles.size());
  integrator->run(handles.data(), nh, context);
}

std::vector<double> ModalRun::state() const {
  std::vector<double> s;
  for (const mxArray* x : {u, v, a}) s.insert(s.end(), mxGetPr(x), mxGetPr(x) + modes.n);
  return s;
}

}  // namespace quarn::bench
