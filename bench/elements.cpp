#include "elements.h"

#include <cstring>

#include "integration/sparse_handles.h"
#include "nonlinear/nl_inout.h"
#include "values.h"

namespace quarn::bench {

namespace {

/// Values of one group, in observed values first, and the parameters behind the law's code.
struct Recipe {
  std::string law;
  int group;
  int forces;
  std::vector<double> opt;
  std::vector<int> iopt;
};

const std::vector<Recipe>& recipes() {
  // The tables: five knots from -2 to 2, one or two columns of values; the search record follows.
  static const std::vector<double> table{-2, -1, 0, 1, 2, -20, -8, 0, 8, 20, 0, 0, 0};
  static const std::vector<double> wide{-2, -1, 0, 1, 2, 9, 8, 7, 8, 9, 30, 20, 10, 20, 30, 0, 0, 0};
  // Of five displacements and three velocities; the record is in front of it.
  static const std::vector<double> grid{-2, -1, 0, 1, 2, -3, 0, 3, -25, -11, -3, 5, 15, -20, -8, 0, 8, 20, -15, -5, 3, 11, 25};
  const auto with = [](std::vector<double> head, const std::vector<double>& tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
  };
  static const std::vector<Recipe> all{
      {"Power", 1, 1, {0.5, 3.0}, {-1}},
      {"Expon", 1, 1, {0.5, 1.1}, {-1}},
      {"Table", 1, 1, with({}, table), {-1, 0, 0, 0, 0, 1, 11, 5, 1}},
      {"BoucWen", 3, 3, {0, 0, 100.0, 0.1, 1.0, 0.5, 0.5, 2.0}, {-1, 0, 0, 0, 0}},
      {"DahlC", 2, 2, {0, 1e-3, 100.0, 1.0, 0.5, 2.0}, {-1, 0, 0, 0, 0}},
      {"sts", 2, 1, {0, 1e-3, 1.0, 100.0, 0.0, 1.0}, {-1, 0, 0, 0, 0}},
      {"Contact", 1, 1, {0.5, 1.5, 0.1, -1.0, 1.0}, {-1}},
      {"Damper", 1, 1, {0.5, 2.0}, {-1}},
      {"Surface", 1, 1, with({0, 0}, grid), {-1, 0, 0, 0, 0, 5, 3}},
      // Gap, stiffness, exponent, damping, friction, onset, radius, speed, centre.
      {"Radial", 2, 2, {0.1, 100.0, 1.5, 0.2, 0.1, 0.01, 0.5, 3.0, 0.05, -0.05}, {-1}},
      // Viscosity, length, radius, clearance, spin, limit, centre, record.
      {"Journal", 2, 2, {0.1, 0.3, 0.5, 2.0, 3.0, 0.9, 0.05, -0.05, 0.0}, {-1}},
      // One sub-step, one internal state: blocks Cu, Dv (6 values each), B (2), A (1), E (2).
      {"Maxw", 2, 2, {0, 1e-3, 1, 0, 10, -5, 0, 0, 0, 0, 0.1, 0, 0, 0, 0, 0, 1, 0, -2, 0, 0}, {-1, 0, 2, 1, 1}},
      {"Clima2", 5, 3, with({0, 1e-3, 2.0, 1.0, 0.3, 0.1}, wide), {-1, 0, 0, 0, 0, 7, 22, 5, 2}},
      {"User", 1, 1, {0, 1e-3, 0.5}, {-1, 0, 1}},
  };
  return all;
}

const Recipe& recipe(const std::string& law) {
  for (const Recipe& r : recipes()) {
    if (r.law == law) return r;
  }
  std::abort();
}

double codeOf(const std::string& law) {
  double code = 0.0;
  double place = 1.0;
  for (const char c : law) {
    code += place * static_cast<unsigned char>(c);
    place *= 256.0;
  }
  return code;
}

mxArray* pages(int values, int count) {
  const mwSize dims[] = {values, 1, count};
  return mxCreateNumericArray(3, dims, mxDOUBLE_CLASS, mxREAL);
}

template <class Handle>
chandle* make(int type, mxArray* value) {
  chandle* h = new Handle;
  h->set_val(type, value);
  return h;
}

chandle* finish(const Recipe& r, int values, mxArray* c, mxArray* b) {
  std::vector<double> opt{codeOf(r.law)};
  opt.insert(opt.end(), r.opt.begin(), r.opt.end());
  std::vector<int> iopt = r.iopt;
  if (r.law == "Maxw") iopt[4] = values / r.group;
  const int count = r.group == 1 ? 1 : 3;
  return make<chandleNl_inout>(1003, scalarStruct({{"c", c},
                                                   {"b", b},
                                                   {"library", r.law == "User" ? mxCreateString(QUARN_BENCH_LAW) : nullptr},
                                                   {"unl", pages(values, count)},
                                                   {"vnl", pages(values, count)},
                                                   {"snl", matrix(static_cast<std::size_t>(values), 1)},
                                                   {"opt", matrix(opt.size(), 1, opt)},
                                                   {"iopt", ints(iopt)}}));
}

}  // namespace

chandle* matrixHandle(int type, int n, const std::vector<int>& jc, const std::vector<int>& ir, const std::vector<double>& pr) {
  mxArray* value = lines(n, n, jc, ir, pr, false);
  if (type == 1) return make<chandleSparseStiffness>(type, value);
  if (type == 2) return make<chandleSparseMass>(type, value);
  return make<chandleSparseDamping>(type, value);
}

chandle* diagonalHandle(int type, const std::vector<double>& diagonal) {
  std::vector<int> jc;
  std::vector<int> ir;
  for (int i = 0; i <= static_cast<int>(diagonal.size()); ++i) jc.push_back(i);
  ir.assign(jc.begin(), jc.end() - 1);
  return matrixHandle(type, static_cast<int>(diagonal.size()), jc, ir, diagonal);
}

const std::vector<std::string>& lawNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> n;
    for (const Recipe& r : recipes()) n.push_back(r.law);
    return n;
  }();
  return names;
}

chandle* element(const std::string& law, int groups, int columns, int first) {
  const Recipe& r = recipe(law);
  const int values = groups * r.group;
  std::vector<int> jc{0};
  std::vector<int> ir;
  for (int i = 0; i < values; ++i) {
    // States are not observed: their lines are empty.
    const int observed = r.group == 5 ? 3 : (r.law == "Radial" || r.law == "Journal" ? 2 : 1);
    if (i % r.group < observed) ir.push_back((first + i) % columns);
    jc.push_back(static_cast<int>(ir.size()));
  }
  const std::vector<double> ones(ir.size(), 1.0);
  return finish(r, values, lines(values, columns, jc, ir, ones, true), lines(values, columns, jc, ir, ones, true));
}

chandle* cubicSpring(const std::vector<double>& rows, int columns, double k) {
  const int count = static_cast<int>(rows.size()) / columns;
  std::vector<int> jc{0};
  std::vector<int> ir;
  for (int e = 0; e < count; ++e) {
    for (int i = 0; i < columns; ++i) ir.push_back(i);
    jc.push_back(static_cast<int>(ir.size()));
  }
  const auto values = static_cast<std::size_t>(count);
  return make<chandleNl_inout>(1003, scalarStruct({{"c", lines(count, columns, jc, ir, rows, true)},
                                                   {"b", lines(count, columns, jc, ir, rows, true)},
                                                   {"unl", matrix(values, 1)},
                                                   {"snl", matrix(values, 1)},
                                                   {"opt", matrix(3, 1, {codeOf("Power"), k, 3.0})}}));
}

chandle* gapElement(const std::vector<double>& row, double gap, double k) {
  const int n = static_cast<int>(row.size());
  std::vector<int> ir;
  for (int i = 0; i < n; ++i) ir.push_back(i);
  const std::vector<double> opt{codeOf("Table"), -gap - 1.0, -gap, gap, gap + 1.0, -k, 0.0, 0.0, k, 0.0, 0.0, 0.0};
  return make<chandleNl_inout>(1003, scalarStruct({{"c", lines(1, n, {0, n}, ir, row, true)},
                                                   {"b", lines(1, n, {0, n}, ir, row, true)},
                                                   {"unl", matrix(1, 1)},
                                                   {"snl", matrix(1, 1)},
                                                   {"opt", matrix(opt.size(), 1, opt)},
                                                   {"iopt", ints({-1, 0, 0, 0, 0, 1, 9, 4, 1})}}));
}

chandle* dahlElement(const std::vector<double>& row, int states, int state, double dt, double k, double slip) {
  const int n = static_cast<int>(row.size());
  std::vector<int> ir;
  for (int i = 0; i < n; ++i) ir.push_back(i);
  std::vector<int> observed = ir;
  observed.push_back(state);
  std::vector<double> values = row;
  values.push_back(1.0);
  const std::vector<double> opt{codeOf("DahlC"), 0.0, dt, k, 1.0, 1.0, slip};
  return make<chandleNl_inout>(1003, scalarStruct({{"c", lines(2, n + states, {0, n, n + 1}, observed, values, true)},
                                                   {"b", lines(2, n + states, {0, n, n}, ir, row, true)},
                                                   {"unl", pages(2, 2)},
                                                   {"vnl", pages(2, 2)},
                                                   {"snl", matrix(2, 1)},
                                                   {"opt", matrix(opt.size(), 1, opt)},
                                                   {"iopt", ints({-1, state, 1, 1, 1})}}));
}

}  // namespace quarn::bench
