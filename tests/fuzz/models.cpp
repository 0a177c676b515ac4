#include "models.h"

#include <algorithm>
#include <cstring>

namespace fuzz {

namespace {

/// Random values with ascending times, half a second apart, in the first of each `rows`; they cover some seconds.
mxArray* timed(Maker& make, std::size_t rows, std::size_t columns) {
  mxArray* a = make.doubles(rows, columns);
  double* table = make.in.rarely(8) ? nullptr : ordinary(a);
  for (std::size_t j = 0; table && j < columns && j * rows < mxGetNumberOfElements(a); ++j) table[j * rows] = 0.5 * static_cast<double>(j);
  return a;
}

}  // namespace

mxArray* handleValue(Maker& make, int type, std::size_t n) {
  if (type == 1003) return elementValue(make, n);
  if (type == 2000) return integratorValue(make, n, 1 + make.in.below(4));
  mxArray* m = make.matrix(n, n);
  if (!m || !mxIsStruct(m)) return m;
  Fields fields{{"type", make.number(type)}, {"factor", make.in.rarely(3) ? timed(make, 2, 2 + make.in.below(8)) : nullptr}};
  for (const char* name : {"pr", "ir", "jc", "dims", "trans"}) {
    const mxArray* value = mxGetNumberOfElements(m) > 0 ? mxGetField(m, 0, name) : nullptr;
    if (value) fields.emplace_back(name, standin::share(value));
  }
  return make.structure(fields);
}

mxArray* integratorValue(Maker& make, std::size_t n, std::size_t steps) {
  Bytes& in = make.in;
  const std::size_t loads = in.below(3);
  mxArray* tft = make.doubles(loads + 1, steps + 1);
  double* table = in.rarely(8) ? nullptr : ordinary(tft);
  for (std::size_t j = 0; table && j <= steps && j * (loads + 1) < mxGetNumberOfElements(tft); ++j) {
    table[j * (loads + 1)] = 0.5 * static_cast<double>(j);
  }
  const std::size_t pages = in.rarely(3) ? 1 + in.below(n > 100 ? 1 : 8) : 0;  // all in the memory of a session
  const std::size_t gains = pages > 0 ? pages : 1;
  return make.structure({{"type", make.number(2000)},
                         {"r", make.doubles(n, loads + 2)},
                         {"tft", tft},
                         {"data", make.doubles(6)},
                         {"iopt", in.rarely(3) ? make.int32s({in.index(4)}) : nullptr},
                         {"gain", in.rarely(3) ? make.doubles(n, n, gains) : nullptr},
                         {"gaint", pages > 0 ? timed(make, 1, pages) : nullptr}});
}

mxArray* matrixCell(Maker& make, std::size_t n) {
  mxArray* damping = make.in.rarely(3) ? make.structure({{"def", make.doubles(n, 2)}, {"data", make.doubles(4)}, {"K", make.matrix(n, n)}})
                                       : make.matrix(n, n);
  return make.cell(1, make.in.rarely(30) ? make.in.below(5) : 3, {make.matrix(n, n), damping, make.matrix(n, n)});
}

standin::Arguments residualArguments(Maker& make, std::size_t n, mxArray* handles) {
  Bytes& in = make.in;
  mxArray* model = handles;
  const std::size_t kind = in.below(3);
  if (kind == 1) model = matrixCell(make, n);
  if (kind == 2) {
    const std::size_t rows = in.below(3);
    std::vector<mxArray*> list(3 * rows, nullptr);
    for (std::size_t j = 0; j < rows; ++j) list[2 * rows + j] = listElement(make, n);
    model = make.structure({{"K", matrixCell(make, n)}, {"NL", make.changed(make.cell(rows, 3, list))}, {"FNL", make.doubles(4)}});
  }
  mxArray* opt = in.rarely(3) ? make.structure({{"Rayleigh", make.doubles(2)}, {"tc", make.number(0)}}) : make.doubles(2);
  standin::Arguments args{
      make.doubles(n), make.changed(model), make.doubles(n), make.doubles(n), in.rarely(5) ? make.doubles(0, 0) : make.doubles(n), opt,
      make.doubles(1)};
  if (in.rarely(20)) args.resize(in.below(args.size()));
  return args;
}

standin::Arguments newmarkArguments(Maker& make, std::size_t n, mxArray* handles) {
  constexpr int types[] = {1003, 1, 3, 1003, 2, 1};
  Bytes& in = make.in;
  mxArray* list = handles;
  if (!in.rarely(3)) {
    const std::size_t extra = in.below(3);
    std::vector<mxArray*> elements{integratorValue(make, n, 1 + in.below(5))};
    for (std::size_t k = 0; k < extra; ++k) elements.push_back(handleValue(make, types[in.below(6)], n));
    list = make.cell(1, elements.size(), elements);
  }
  const std::size_t saved = in.below(5);
  mxArray* mem = make.structure({{"uva", make.structure({{"uva", make.doubles(4 * n + in.below(3) * 4)}, {"FNL", make.doubles(4)}})}});
  mxArray* times = make.doubles(saved);
  if (double* at = ordinary(times)) {
    for (std::size_t k = 0; k < std::min(saved, mxGetNumberOfElements(times)); ++k) at[k] = 0.5 * static_cast<double>(k + 1);
  }
  mxArray* out =
      make.structure({{"data", times},
                      {"def", in.rarely(6) ? nullptr : make.doubles(n, saved)},
                      {"FNL", in.rarely(2) ? make.structure({{"data", make.doubles(saved)}, {"def", make.doubles(4, saved)}}) : nullptr}});
  mxArray* model = make.structure({{"FNL", make.doubles(4)}});
  standin::Arguments args{list, model, make.doubles(n), make.doubles(n), make.doubles(n), make.doubles(2), mem, out};
  if (in.rarely(30)) args.resize(in.below(args.size()));
  return args;
}

standin::Arguments matrixArguments(Maker& make, const char* command) {
  Bytes& in = make.in;
  const std::size_t n = make.size();
  const std::size_t m = in.rarely(4) ? make.size() : n;
  const std::size_t columns = in.below(4);
  const auto is = [command](const char* word) { return std::strcmp(command, word) == 0; };
  const auto base = [&](std::size_t rows) { return in.rarely(3) ? make.complexDoubles(rows, columns) : make.doubles(rows, columns); };
  standin::Arguments args;
  if (is("tbbp")) args = {make.matrix(n, n), make.doubles(n), make.doubles(n)};
  if (is("setsparse")) args = {make.matrix(m, n), make.int32s({in.index(5), in.index(5)}), make.doubles(0), make.doubles(in.below(4))};
  if (is("c<-a'*b")) {
    args = {make.doubles(m, columns), make.matrix(m, n, in.rarely(4))};
    if (in.rarely(2)) args.push_back(make.doubles(columns, n));
  }
  if (is("abc")) args = {base(n), make.matrix(n, m), base(m), make.int32s({1, 0, 0})};
  if (is("dtkt")) args = {make.doubles(n, columns), make.nativeSparse(n, n)};
  if (is("ta'*k*tb")) args = {make.doubles(n, columns), make.nativeSparse(n, m), make.doubles(m, columns)};
  if (is("directzr")) {
    args = {make.complexDoubles(n, n), make.cell(1, columns, {make.doubles(n, n), make.doubles(n, n)}), make.complexDoubles(n, columns),
            in.rarely(2) ? make.complexDoubles(m, n) : make.doubles(m, n)};
  }
  if (is("igsm")) args = {make.doubles(n, in.below(2)), make.nativeSparse(m, n)};
  if (is("energies")) {
    const std::size_t elements = in.below(3);
    mxArray* scheme = make.doubles(2);
    double* step = ordinary(scheme);
    if (step && mxGetNumberOfElements(scheme) == 2 && !in.rarely(4)) step[0] = step[1] = 0.5;
    args = {make.doubles(n, m), make.doubles(n), make.doubles(n), scheme, make.doubles(n), make.doubles(n)};
    const standin::Arguments forces{make.doubles(n, columns), make.doubles(columns, m), make.doubles(n, elements),
                                    make.doubles(elements, m)};
    args.insert(args.end(), forces.begin(), forces.end());
  }
  if (is("nlv1")) args = {make.structure({{"unl", make.doubles(n)}})};
  if (in.rarely(20)) args.resize(in.below(args.size() + 1));
  if (in.rarely(40)) args.push_back(make.anything());
  return args;
}

}  // namespace fuzz
