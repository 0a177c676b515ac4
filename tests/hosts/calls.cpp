// Calls in both directions: the host calls a module, a module calls functions of the host's language.
#include <map>

#include "array.h"

namespace standin {

bool runEntry(Frame& frame, Entry entry, int nlhs, mxArray** plhs, int nrhs, const mxArray** prhs);

namespace {

std::map<std::string, Function>& functions() {
  static std::map<std::string, Function> all;
  return all;
}

void (*exitFunction)() = nullptr;

std::string textOf(const mxArray* a) {
  const auto* characters = static_cast<const mxChar*>(a->re.get());
  return std::string(characters, characters + a->count());
}

Function lookUp(const std::string& name) {
  const auto found = functions().find(name);
  if (found == functions().end()) raise("MATLAB:UndefinedFunction", "Undefined function '" + name + "'.");
  return found->second;
}

/// feval takes a name or a function handle first.
Function resolve(const std::string& name, Arguments& args) {
  if (name != "feval") return lookUp(name);
  if (args.empty()) raise("MATLAB:minrhs", "Not enough input arguments.");
  const mxArray* head = args.front();
  args.erase(args.begin());
  if (head->kind == Kind::functionHandle) return head->function;
  if (head->id == mxCHAR_CLASS) return lookUp(textOf(head));
  raise("MATLAB:feval:InvalidArgument", "Function to evaluate must be a function name or a function handle.");
}

/// Runs a function of the host's language in a frame of its own; false, with the error set, if it failed.
bool callBack(int nlhs, mxArray** plhs, int nrhs, mxArray** prhs, const char* name) {
  const Busy busy;
  Frame& caller = currentFrame();
  Frame own;
  enterFrame(own);
  bool ok = true;
  try {
    Arguments args(prhs, prhs + nrhs);
    for (const mxArray* a : args) deref(a, "mexCallMATLAB");
    const Function function = resolve(name, args);
    const std::vector<mxArray*> results = function(nlhs, args);
    for (int k = 0; k < nlhs; ++k) {
      mxArray* result = static_cast<std::size_t>(k) < results.size() ? results[static_cast<std::size_t>(k)] : nullptr;
      if (result && result->frame != &own) result = share(result);
      if (result) moveTo(caller, result);
      plhs[k] = result;
    }
  } catch (Error& error) {
    ok = false;
    setError(std::move(error));
  }
  leaveFrame(own);
  return ok;
}

}  // namespace

void define(const std::string& name, Function function) { functions()[name] = std::move(function); }
void undefineAll() { functions().clear(); }

void (*takeExitFunction())() { return std::exchange(exitFunction, nullptr); }

Result call(Entry entry, int nlhs, const Arguments& args) {
  Result result;
  Frame& caller = currentFrame();
  Frame frame;
  enterFrame(frame);
  // Places and arguments are exactly as many as the call has, for the sanitizer.
  std::vector<mxArray*> out(static_cast<std::size_t>(nlhs > 1 ? nlhs : 1));
  std::vector<const mxArray*> in(args);
  frame.module = true;
  result.failed = !runEntry(frame, entry, nlhs, out.data(), static_cast<int>(in.size()), in.data());
  frame.module = false;
  if (result.failed) {
    Error error = takeError();
    result.identifier = std::move(error.identifier);
    result.text = std::move(error.text);
    out.assign(out.size(), nullptr);
  }
  for (mxArray* a : out) {
    if (!a) continue;
    if (a->frame != &frame) misuse("a module returned an array that it did not create in this call");
    moveTo(caller, a);
  }
  result.out = std::move(out);
  result.reclaimedArrays = frame.arrays.size();
  result.reclaimedBlocks = frame.blocks.size();
  leaveFrame(frame);
  return result;
}

}  // namespace standin

using namespace standin;

int mexCallMATLAB(int nlhs, mxArray* plhs[], int nrhs, mxArray* prhs[], const char* function) {
  if (callBack(nlhs, plhs, nrhs, prhs, function)) return 0;
  static std::string identifier, text;
  {
    const Busy busy;
    Error error = takeError();
    identifier = std::move(error.identifier);
    text = std::move(error.text);
  }
  endCall(identifier.c_str(), text.c_str());
}

int mexAtExit(void (*function)(void)) {
  exitFunction = function;
  return 0;
}
