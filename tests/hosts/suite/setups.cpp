#include "setups.h"

#include <cmath>

namespace build {

NewmarkRun newmarkRun(mwSize modes, mwSize steps, double dt) {
  constexpr double beta = 0.25;
  constexpr double gamma = 0.5;
  Values r(3 * modes);
  for (mwSize i = 0; i < modes; ++i) {
    const double stiffness = static_cast<double>((i + 1) * (i + 1));
    r[modes + i] = -1.0;
    r[2 * modes + i] = 1.0 / (1.0 / (beta * dt * dt) + stiffness);
  }
  Values table(2 * (steps + 1));
  for (mwSize j = 0; j <= steps; ++j) {
    table[2 * j] = dt * static_cast<double>(j);
    table[2 * j + 1] = std::sin(table[2 * j]);
  }
  NewmarkRun run;
  run.integrator =
      structure({{"type", scalar(2000)},
                 {"r", matrix(modes, 3, r)},
                 {"tft", matrix(2, steps + 1, table)},
                 {"data", column({dt, (0.5 - beta) * dt * dt, (1 - gamma) * dt, gamma / (beta * dt), 1 / (beta * dt * dt), 0})}});
  run.model = structure({{"FNL", zeros(4)}});
  run.u = zeros(modes);
  run.v = zeros(modes);
  run.a = zeros(modes);
  run.opt = column({0, 0});
  run.mem = structure({{"uva", structure({{"uva", zeros(4 * modes)}, {"FNL", zeros(4)}})}});
  Values times;
  for (mwSize j = 1; j <= steps; ++j) times.push_back(table[2 * j]);
  run.out = structure({{"data", column(times)}, {"def", zeros(modes, steps)}});
  return run;
}

mxArray* element(const char* law, mwSize n, const Values& parameters, const Fields& more) {
  Values opt{lawCode(law)};
  opt.insert(opt.end(), parameters.begin(), parameters.end());
  Values first(n, 0.0);
  first[0] = 1.0;
  Fields fields{{"type", scalar(1003)}, {"c", compressed(n, 1, first, true)}, {"b", compressed(n, 1, first, true)}, {"opt", column(opt)}};
  fields.insert(fields.end(), more.begin(), more.end());
  return structure(fields);
}

mxArray* listMatrix(int type, const Values& diagonal) {
  const mwSize n = diagonal.size();
  Values dense(n * n);
  for (mwSize k = 0; k < n; ++k) dense[k + k * n] = diagonal[k];
  return withField(compressed(n, n, dense), "type", scalar(type));
}

mxArray* withField(const mxArray* a, const char* name, mxArray* value) {
  Fields fields;
  bool replaced = false;
  for (int f = 0; f < mxGetNumberOfFields(a); ++f) {
    const std::string known = mxGetFieldNameByNumber(a, f);
    const mxArray* old = mxGetFieldByNumber(a, 0, f);
    replaced = replaced || known == name;
    fields.emplace_back(known, known == name ? value : old ? standin::share(old) : nullptr);
  }
  if (!replaced) fields.emplace_back(name, value);
  return structure(fields);
}

mxArray* manyEntries() {
  constexpr int entries = 200;
  std::vector<int> ir, jc{0};
  for (int i = 0; i < manyLines; ++i) {
    for (int k = 0; k < entries; ++k) ir.push_back((i + k) % manyLines);
    jc.push_back((i + 1) * entries);
  }
  return structure({{"pr", column(Values(ir.size(), 1.0))}, {"ir", int32s(ir)}, {"jc", int32s(jc)}});
}

}  // namespace build
