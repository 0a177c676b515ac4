// The commands of the module.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// Commands have the entry's own signature; prhs[0] is the command word.
using Command = void (*)(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

struct CommandRow {
  const char* word;
  Command run;
};

/// The row whose word equals word exactly; null if there is none.
const CommandRow* findCommand(const char* word);

/// Room for a command word as callers spell it.
constexpr int wordCapacity = 64;

}  // namespace quarn
