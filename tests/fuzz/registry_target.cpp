// The registry: sequences of set, get, clear and gather with stale, forged, fractional, NaN and empty indices, against a model of it.
#include <cstdio>
#include <cstdlib>
#include <map>

#include "numbers/convert.h"
#include "session.h"

namespace {

/// What is registered: a key without a value is listed, but holds no handle.
struct Model {
  std::map<int, double> keys;
  std::map<int, bool> live;
  int counter = 0;

  void clear(int i) {
    if (i == -1) {
      for (auto& entry : live) entry.second = false;
      return;
    }
    live.erase(i);
    keys.erase(i);
    if (counter == i) counter = i - 1;
  }
  bool find(int i) { return live[i]; }
};

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "registry: %s\n", what);
  std::abort();
}

void checkKeys(fuzz::Session& session, const Model& model) {
  const standin::Result result = session.call("chandleget", {}, 1);
  require(!result.failed, "the list failed");
  require(mxGetNumberOfElements(result.out[0]) == model.live.size(), "another number of keys");
  const double* key = mxGetPr(result.out[0]);
  for (const auto& entry : model.live) require(*key++ == entry.first, "another key");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Bytes in(data, size);
  fuzz::Session session(in);
  standin::undefineAll();
  standin::define("remi", [](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    const auto place = static_cast<std::size_t>(mxGetScalar(args[1])) - 1;
    return {mxCreateDoubleScalar(mxGetPr(mxGetProperty(args[0], 0, "index"))[place])};
  });
  Model model;
  for (int round = 0; round < 60 && !in.empty(); ++round) {
    const double number = in.rarely(4) ? in.number() : static_cast<double>(in.below(6)) + (in.rarely(4) ? 0.5 : 0.0);
    const int index = quarn::toInt(number);
    mxArray* argument = mxCreateDoubleScalar(number);
    switch (in.below(6)) {
      case 0: {
        const standin::Result result = session.call("chandleset", {mxCreateDoubleScalar(1), mxCreateDoubleScalar(round)}, 1);
        require(!result.failed && mxGetScalar(result.out[0]) == model.counter, "another index was issued");
        model.live[model.counter] = true;
        model.keys[model.counter++] = round;
        break;
      }
      case 1: {
        const standin::Result result = session.call("chandleget", {argument}, 1);
        require(result.failed != model.find(index), "a handle is there or not");
        if (!result.failed) require(mxGetScalar(result.out[0]) == model.keys[index], "another value");
        break;
      }
      case 2:
        session.call("chandleclear", {argument}, 0);
        model.clear(index);
        break;
      case 3:
        session.call("chandleclear", in.rarely(2) ? standin::Arguments{} : standin::Arguments{mxCreateDoubleMatrix(0, in.below(3), mxREAL)},
                     0);
        model.clear(-1);
        break;
      case 4: {
        // A dense stiffness adds nothing: what is told is whether the handle was found.
        mxArray* list = standin::object("chandle", {{"index", argument}}, 1);
        mxArray* r = mxCreateDoubleMatrix(2, 1, mxREAL);
        const standin::Result result = session.call("residual", {r, list, r, r, r}, 0);
        require(result.failed != model.find(index), "a handle was gathered or not");
        break;
      }
      default:
        checkKeys(session, model);
    }
  }
  checkKeys(session, model);
  return 0;
}
