// Elements of a model's list "NL".
#include <algorithm>

#include "models.h"

namespace fuzz {

namespace {

mxArray* functionHandle(Maker& make) {
  const std::size_t how = make.in.below(5);
  const double value = make.in.number();
  const std::size_t rows = make.in.below(4);
  return standin::functionHandle([=](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    if (how == 1) standin::raise("law:failed", "no force");
    if (how == 2) return {};
    mxArray* F = mxCreateDoubleMatrix(rows, 1, mxREAL);
    for (std::size_t k = 0; k < rows; ++k) mxGetPr(F)[k] = value;
    if (how == 3) {
      const char* names[] = {"snl"};
      mxArray* s = mxCreateStructMatrix(1, 1, 1, names);
      mxSetField(s, 0, "snl", F);
      return {s};
    }
    if (how == 4 && !args.empty() && mxIsStruct(args[0])) return {mxGetField(args[0], 0, "unl")};
    return {F};
  });
}

mxArray* rotcenterCell(Maker& make, std::size_t n) {
  Bytes& in = make.in;
  const std::size_t rows = in.rarely(3) ? 17 : in.rarely(4) ? 9 + in.below(9) : 11;
  const std::size_t points = in.below(3);
  const auto dof = [&] { return 1.0 + in.index(n); };
  std::vector<mxArray*> c(2 * rows, nullptr);
  const auto put = [&](std::size_t row, mxArray* value) {
    if (row <= rows) c[rows + row - 1] = value;
  };
  const auto ints = [&](std::size_t limit) {
    mxArray* a = mxCreateDoubleMatrix(points, 1, mxREAL);
    for (std::size_t k = 0; k < points; ++k) mxGetPr(a)[k] = 1.0 + in.index(limit);
    return make.changed(a);
  };
  put(1, make.number(dof()));
  put(2, make.doubles(3, 3));
  put(3, make.doubles(3));
  put(4, make.doubles(3));
  put(5, ints(n));
  put(6, ints(3));
  put(7, ints(n));
  put(8, ints(3));
  put(10, make.doubles(3));
  put(11, make.int32s({in.index(4), in.index(4), in.index(4)}));
  if (rows > 14) put(15, make.matrix(n, 3, true));
  put(17, make.matrix(n, 3, true));
  return make.cell(rows, 2, c);
}

mxArray* ascendingTable(Maker& make) {
  const std::size_t knots = make.in.below(5);
  mxArray* a = make.doubles(knots, 2);
  if (double* abscissae = ordinary(a)) {
    for (std::size_t k = 0; k < std::min(knots, mxGetNumberOfElements(a)); ++k) abscissae[k] = static_cast<double>(k);
  }
  return a;
}

}  // namespace

mxArray* listElement(Maker& make, std::size_t n) {
  Bytes& in = make.in;
  const std::size_t forces = 1 + in.below(3);
  const std::size_t pages = in.rarely(3) ? 1 + in.below(4) : 1;
  const std::size_t law = in.below(6);
  Fields fields{{"c", make.matrix(n, forces, true)},
                {"b", make.matrix(n, forces, !in.rarely(4))},
                {"unl", make.doubles(forces, 1, pages)},
                {"vnl", in.rarely(3) ? nullptr : make.doubles(forces, 1, pages)},
                {"unl0", in.rarely(3) ? make.doubles(forces) : nullptr},
                {"vnl0", in.rarely(3) ? make.doubles(forces) : nullptr},
                {"snl", in.rarely(3) ? make.doubles(forces) : nullptr},
                {"opt", make.doubles(2)},
                {"StoreFNL", make.number(1)},
                {"FInd", make.int32s({in.index(4)})}};
  if (law == 0) fields.emplace_back("Fu", functionHandle(make));
  if (law == 1) fields.emplace_back("type", functionHandle(make));
  if (law == 2) fields.emplace_back("type", make.text("someword"));
  if (law == 3) fields.insert(fields.end(), {{"type", make.text("mocirc2")}, {"cta", make.matrix(n, 1 + in.below(3))}});
  if (law == 4) {
    fields.insert(fields.end(), {{"type", make.text("rotcenter")},
                                 {"Cell", rotcenterCell(make, n)},
                                 {"Fu", ascendingTable(make)},
                                 {"Fv", ascendingTable(make)},
                                 {"cur_u", make.doubles(3)},
                                 {"cur_v", make.doubles(3)}});
  }
  if (law == 5) fields.emplace_back("type", make.anything());
  return make.structure(fields);
}

}  // namespace fuzz
