#include "session.h"

#include <cstdio>
#include <cstdlib>
#include <new>

#include "handles/hindex.h"

namespace fuzz {

namespace {

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "fuzz: %s\n", what);
  std::abort();
}

/// A module that has just been loaded.
void forgetHandles() {
  quarn::cIndex.~hindex();
  new (&quarn::cIndex) quarn::hindex;
}

}  // namespace

Session::Session(Bytes& source) : make(source), in(source) {
  standin::setMemoryLimit(std::size_t{1} << 26);
  standin::setErrors(in.rarely(2) ? standin::Errors::jump : standin::Errors::unwind);
  standin::define("hapsel", [](int, const standin::Arguments&) -> std::vector<mxArray*> { return {}; });
  standin::define("first", [](int, const standin::Arguments& args) -> std::vector<mxArray*> { return {const_cast<mxArray*>(args.at(0))}; });
  standin::define("remi", [this](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    if (in.rarely(40)) standin::raise("remi:failed", "no index");
    if (in.rarely(40)) return {};
    if (in.rarely(40)) return {Maker(in).anything()};  // an array of the callback, gone with it: not for the pool
    if (in.rarely(30)) call("chandleclear", {mxCreateDoubleScalar(in.index(3))}, 0);
    const mxArray* indices = mxGetProperty(args[0], 0, "index");
    const auto place = static_cast<std::size_t>(mxGetScalar(args[1])) - 1;
    require(indices && place < mxGetNumberOfElements(indices), "remi was asked for an element outside");
    return {mxCreateDoubleScalar(mxGetPr(indices)[place])};
  });
}

Session::~Session() {
  standin::failAllocation(0);
  standin::setErrors(standin::Errors::unwind);
  call("chandleclear", {}, 0);
  forgetHandles();
  standin::undefineAll();
  standin::printed();
  standin::clearWorkspace();
  require(standin::live().blocks == standin::live().persistentBlocks, "memory of a call stays behind");
  standin::clearPersistent();
  require(standin::live().arrays == 0 && standin::live().blocks == 0, "something stays behind");
}

standin::Result Session::call(const char* command, standin::Arguments args, int nlhs) {
  for (const mxArray*& a : args) {
    if (!a) a = mxCreateDoubleMatrix(0, 0, mxREAL);
  }
  args.insert(args.begin(), mxCreateString(command));
  standin::Result result = standin::call(mexFunction, nlhs, args);
  require(!result.failed || !result.text.empty(), "an error without a text");
  return result;
}

mxArray* Session::handles() {
  const std::size_t n = in.below(4);
  mxArray* indices = mxCreateDoubleMatrix(n, 1, mxREAL);
  for (std::size_t k = 0; k < n; ++k) {
    mxGetPr(indices)[k] = known.empty() || in.rarely(30) ? in.number() : known[in.below(known.size())];
  }
  return standin::object("chandle", {{"index", indices}}, n);
}

void Session::set(int type, mxArray* value) {
  const standin::Result result = call("chandleset", {make.number(type), value}, 1);
  if (!result.failed) known.push_back(mxGetScalar(result.out[0]));
}

void Session::perhapsFailAllocation() { standin::failAllocation(in.rarely(20) ? static_cast<long>(1 + in.below(60)) : 0); }

}  // namespace fuzz
