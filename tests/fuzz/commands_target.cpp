// Every command, with arguments that are mostly valid.
#include "session.h"

namespace {

constexpr const char* words[] = {"residual",     "chandlediagnewmark",
                                 "residual",     "chandlediagnewmark",
                                 "chandleset",   "chandleget",
                                 "chandleclear", "tbbp",
                                 "setsparse",    "c<-a'*b",
                                 "abc",          "dtkt",
                                 "ta'*k*tb",     "directzr",
                                 "igsm",         "nlv1",
                                 "ismex",        "cvs",
                                 "omp",          "",
                                 "version"};
constexpr int types[] = {1003, 1, 2, 3, 2000};

void oneCommand(fuzz::Session& session, std::size_t n) {
  fuzz::Bytes& in = session.in;
  fuzz::Maker& make = session.make;
  const std::size_t which = in.below(sizeof words / sizeof *words);
  const char* word = words[which];
  // Takes most turns of the last word, so that the inputs of the corpus go on meaning what they did.
  if (which == sizeof words / sizeof *words - 1 && !in.rarely(8)) word = "energies";
  const int nlhs = static_cast<int>(in.below(4));
  session.perhapsFailAllocation();
  if (which < 4) {
    mxArray* handles = session.handles();
    session.call(word, which % 2 == 0 ? fuzz::residualArguments(make, n, handles) : fuzz::newmarkArguments(make, n, handles), nlhs);
  } else if (which == 4) {
    const int type = types[in.below(sizeof types / sizeof *types)];
    session.set(type, fuzz::handleValue(make, type, n));
  } else if (which == 5) {
    standin::Arguments args{mxCreateDoubleScalar(in.index(3))};
    if (in.rarely(2)) args.insert(args.begin(), in.rarely(4) ? make.anything() : mxCreateString("first"));
    if (in.rarely(8)) args.assign(in.below(11), make.number(0));
    session.call(word, args, nlhs);
  } else if (which == 6) {
    session.call(word, {in.rarely(3) ? make.anything() : make.number(in.index(3))}, nlhs);
  } else {
    session.call(word, fuzz::matrixArguments(make, word), nlhs);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Bytes in(data, size);
  fuzz::Session session(in);
  // Mostly small; blocks of modes and lines that are split among threads want more.
  const std::size_t many = in.rarely(32) ? 64 * (1 + in.below(24)) : 0;
  const std::size_t n = many + 1 + in.below(5) - in.below(2) * in.below(2);
  for (int call = 0; call < 12; ++call) {
    oneCommand(session, n);
    if (in.empty()) break;
  }
  return 0;
}
