// Nonlinear elements: every law with parameters that fit, mostly.
#include <algorithm>
#include <cmath>
#include <string>

#include "models.h"
#include "standin.h"

namespace fuzz {

namespace {

/// Inputs of the corpus pick by place: new ones go to the end.
constexpr const char* lawWords[] = {"Power",  "Maxw",   "Table",   "Expon",   "DahlC", "Clima2",  "sts",
                                    "Damper", "Radial", "Journal", "Contact", "User",  "BoucWen", "Surface"};

double lawCode(const char* word) {
  double code = 0.0;
  double place = 1.0;
  for (; *word; ++word, place *= 256.0) code += place * static_cast<double>(*word);
  return code;
}

struct Law {
  std::vector<double> opt;
  std::vector<int> iopt;
  std::size_t page;
  std::size_t pages;
};

/// Appends an ascending table of nx knots and ny columns and its record; returns its place.
void addTable(Bytes& in, Law& law, int nx, int ny) {
  const int table = static_cast<int>(law.opt.size());
  double x = in.number();
  for (int k = 0; k < nx; ++k) {
    law.opt.push_back(x);
    x += static_cast<double>(in.below(4)) * 0.25;
  }
  for (int k = 0; k < nx * ny; ++k) law.opt.push_back(in.number());
  const int record = static_cast<int>(law.opt.size());
  for (int k = 0; k < 3; ++k) law.opt.push_back(in.number());
  law.iopt.insert(law.iopt.end(), {table, record, nx, ny});
}

/// The grid of a surface: its counts in iopt, ascending knots and forces in opt.
void addSurface(Bytes& in, Law& law) {
  law.opt.resize(3);
  std::size_t forces = 1;
  for (int axis = 0; axis < 2; ++axis) {
    const std::size_t knots = 2 + in.below(4);
    double x = in.number();
    for (std::size_t k = 0; k < knots; ++k, x += 0.25 + static_cast<double>(in.below(4)) * 0.25) law.opt.push_back(x);
    law.iopt.push_back(in.rarely(8) ? in.index(9) : static_cast<int>(knots));
    forces *= knots;
  }
  for (std::size_t k = 0; k < forces; ++k) law.opt.push_back(in.number());
}

/// -1 ... usual-2, now and then far outside.
int offset(Bytes& in, std::size_t usual) {
  const int i = in.index(usual);
  return i > -2147483647 ? i - 1 : i;
}

Law makeLaw(Bytes& in, const std::string& word) {
  Law law{{lawCode(word.c_str())}, {offset(in, 6), offset(in, 4), in.index(2), in.index(3), in.index(3)}, 1 + in.below(4), 1 + in.below(4)};
  for (int k = 1; k < 7; ++k) law.opt.push_back(in.number());
  if (word == "Maxw") {
    const int q = in.rarely(8) ? in.index(4) : 1;
    const int m = in.rarely(4) ? in.index(4) : q;
    const int elements = 1 + static_cast<int>(in.below(3));
    law.iopt = {offset(in, 6), offset(in, 4), q, m, elements};
    law.page = static_cast<std::size_t>(elements) * (1 + static_cast<std::size_t>(q > 0 && q < 9 ? q : 1)) + in.below(3);
    law.pages = 3 - in.below(2) * in.below(2);
    law.opt[3] = in.rarely(6) ? -1.0 : 1.0 + static_cast<double>(in.below(5));
    while (law.opt.size() < 40) law.opt.push_back(in.number());
  }
  if (word == "Table") addTable(in, law, static_cast<int>(in.below(6)), static_cast<int>(in.below(3)));
  if (word == "Surface") addSurface(in, law);
  if (word == "User") {
    const int states = law.iopt[3];
    if (states >= 0) law.iopt[2] = static_cast<int>(law.page) - states;
    law.iopt[4] = 1;
  }
  if (word == "DahlC" || word == "Clima2") law.pages = 2 + in.below(3);
  if (word == "Clima2") {
    law.page = 5 * (1 + in.below(2));
    addTable(in, law, 1 + static_cast<int>(in.below(5)), 2);
  }
  if (word == "Radial" || word == "Journal") {
    law.page = 2 * (1 + in.below(3)) + in.below(20) / 19;
    law.opt[1] = std::abs(law.opt[1]);  // gap
    law.opt[4] = std::abs(law.opt[4]);  // clearance
    law.opt[6] = in.rarely(8) ? law.opt[6] : 0.9;
    while (law.opt.size() < 11) law.opt.push_back(in.number());
  }
  return law;
}

/// A law of the user's: as many forces as displacements and as many states as before, mostly.
mxArray* userFunction(std::size_t extra) {
  return standin::functionHandle([extra](int nlhs, const standin::Arguments& args) -> std::vector<mxArray*> {
    mxArray* force = mxCreateDoubleMatrix(mxGetNumberOfElements(args[0]) + extra, 1, mxREAL);
    if (double* f = mxGetPr(force)) f[0] = 1.0;
    return {force, nlhs > 1 ? mxDuplicateArray(args[2]) : nullptr};
  });
}

/// What runs for ever is no fault to be found: sub-steps and blocks are counts that the user asks for.
void bound(mxArray* opt, mxArray* iopt) {
  double* values = ordinary(opt);
  if (values && mxGetNumberOfElements(opt) > 3 && values[3] > 100.0) values[3] = 100.0;
  if (iopt && mxIsInt32(iopt) && mxGetNumberOfElements(iopt) > 4) {
    int& blocks = static_cast<int*>(mxGetData(iopt))[4];
    if (blocks > 4096) blocks = 4096;
  }
}

}  // namespace

mxArray* elementValue(Maker& make, std::size_t n) {
  Bytes& in = make.in;
  const std::string word = lawWords[in.below(sizeof lawWords / sizeof *lawWords)];
  const bool user = word == "User";
  const Law law = makeLaw(in, word);
  const std::size_t observed = in.rarely(6) ? in.below(8) : law.page;
  const std::size_t forces = law.page * (word == "Table" ? 2 : 1);
  mxArray* opt = make.doubles(law.opt.size());
  if (double* values = ordinary(opt)) std::copy_n(law.opt.begin(), std::min(law.opt.size(), mxGetNumberOfElements(opt)), values);
  mxArray* iopt = make.int32s(law.iopt);
  bound(opt, iopt);
  return make.structure({{"type", make.number(1003)},
                         {"c", make.matrix(n, observed, true)},
                         {"b", in.rarely(8) ? make.doubles(1, n) : make.matrix(n, law.page, !in.rarely(4))},
                         {"unl", make.doubles(law.page, 1, law.pages)},
                         {"vnl", in.rarely(6) ? nullptr : make.doubles(law.page, 1, law.pages)},
                         {"snl", in.rarely(3) ? nullptr : make.doubles(forces)},
                         {"opt", opt},
                         {"call", user && !in.rarely(8) ? userFunction(in.rarely(8) ? 1 : 0) : nullptr},
                         {"library", user && in.rarely(8) ? make.text(in.rarely(2) ? "/dev/null" : "law.so") : nullptr},
                         {"iopt", in.rarely(10) ? nullptr : iopt}});
}

}  // namespace fuzz
