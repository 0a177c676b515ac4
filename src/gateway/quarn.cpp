// The entry of the module.
#include <cstdio>
#include <new>
#include <stdexcept>
#include <system_error>

#include "base/fixed_errors.h"
#include "gateway/command_table.h"
#include "handles/hindex.h"
#include "host/arrays.h"
#include "host/errors.h"
#include "nonlinear/user_library.h"
#include "sparse/worker_threads.h"

namespace {

constexpr double presence = 1.0001;

/// Runs when the module is about to be unloaded, and when the host ends. Cannot throw.
extern "C" void leaveModule() {
  quarn::endSparseWorkers();
  quarn::closeUserLibraries();
}

void registerExit() {
  static bool registered = false;
  if (registered) return;
  registered = true;
  mexAtExit(leaveModule);
}

const quarn::CommandRow* commandOf(const mxArray* word) {
  if (!mxIsChar(word)) return nullptr;
  char text[quarn::wordCapacity] = "";
  char* all = text;
  const std::size_t size = quarn::host::count(word) + 1;
  if (size > sizeof text) all = static_cast<char*>(mxCalloc(size, 1));  // it may end at an embedded zero
  mxGetString(word, all, static_cast<mwSize>(size));
  return quarn::findCommand(all);
}

/// Runs a command. An exception of the standard library (out of memory above all) must not leave the module; the host's own,
/// with which Octave unwinds after an error, must. Returns the first kind's text in text.
bool run(const quarn::CommandRow& row, int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[], char* text, std::size_t size) {
  try {
    row.run(nlhs, plhs, nrhs, prhs);
    return true;
  } catch (const std::bad_alloc&) {
    std::snprintf(text, size, "out of memory");
  } catch (const std::logic_error& e) {
    std::snprintf(text, size, "%s", e.what());
  } catch (const std::system_error& e) {
    std::snprintf(text, size, "%s", e.what());
  }
  return false;
}

}  // namespace

extern "C" [[gnu::visibility("default")]] void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  registerExit();
  quarn::cIndex.destroyRetired();
  const quarn::host::PropertiesOfCall properties;
  if (nrhs == 0) {
    plhs[0] = mxCreateDoubleScalar(presence);
    return;
  }
  const quarn::CommandRow* row = commandOf(prhs[0]);
  if (!row) {
    const bool isString = quarn::host::isClass(prhs[0], "string");
    quarn::host::fail(isString ? quarn::fixed::stringWord : quarn::fixed::unknownCommand);
  }
  quarn::host::setCommand(row->word);
  char text[256];
  if (!run(*row, nlhs, plhs, nrhs, prhs, text, sizeof text)) quarn::host::refuse("%s", text);
}
