// Ends of a call that failed. None of these functions returns.
//
// A failure with a defined identifier or text goes through fail(); a call that would leave its arrays goes through refuse(),
// before anything was written. On Octave they unwind the stack; MATLAB does not promise that destructors run, so nothing
// that owns memory outside the host may be alive in a function that calls them.
#pragma once

#include "host/mex_api.h"

namespace quarn::host {

/// The command word that refuse() puts into its texts. The gateway sets it at every entry; the pointer must stay valid.
void setCommand(const char* word) noexcept;

/// The numbered part of the arguments that refuse() names after the command, "element" 3, say; number 0: none. Every entry begins with
/// none. The pointer must stay valid.
void setPart(const char* word, int number) noexcept;

/// An error whose identifier and text are fixed to the letter.
struct FixedError {
  const char* identifier;  ///< null: none
  const char* text;
  const char* from;  ///< what raises it, for documents
};

/// Raises it.
[[noreturn]] void fail(const FixedError& error);

/// Raises "quarn COMMAND : <formatted text>", or "quarn COMMAND : PART NUMBER : <formatted text>". The text says what is wrong, what was
/// expected and what was got.
[[noreturn]] [[gnu::format(printf, 1, 2)]] void refuse(const char* format, ...);

/// Calls a function of the host's language. Its error ends the call, with identifier and text unchanged. The function may call quarn
/// itself; afterwards texts name the command of this call again. While it runs, the module cannot be cleared.
void callHost(int nlhs, mxArray* plhs[], int nrhs, mxArray* prhs[], const char* function);

}  // namespace quarn::host
