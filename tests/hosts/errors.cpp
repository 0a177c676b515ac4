// Errors and printing.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "array.h"

namespace standin {

namespace {

Errors mode = Errors::unwind;
Error last;
std::string output;

/// What unwinds a module's stack. Not an exception of the standard library.
struct Unwinding {};

}  // namespace

void setErrors(Errors newMode) { mode = newMode; }

Error takeError() { return std::move(last); }
void setError(Error error) { last = std::move(error); }

void endCall(const char* identifier, const char* text) {
  {
    const Busy busy;
    last.identifier.assign(identifier);
    last.text.assign(text);
  }
  Frame& frame = currentFrame();
  if (!frame.module) raise(last.identifier, last.text);
  if (mode == Errors::jump) std::longjmp(frame.back, 1);
  throw Unwinding{};
}

void raise(std::string identifier, std::string text) { throw Error{std::move(identifier), std::move(text)}; }

void misuse(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::fputs("stand-in host: ", stderr);
  std::vfprintf(stderr, format, args);
  std::fputc('\n', stderr);
  va_end(args);
  std::abort();
}

const mxArray& deref(const mxArray* a, const char* function) {
  if (!a) misuse("%s of no array (null)", function);
  return *a;
}

std::string printed() { return std::exchange(output, {}); }

/// Runs the entry; false if it ended by an error of the host. Nothing with a destructor lives in here, for the long jump's sake.
bool runEntry(Frame& frame, Entry entry, int nlhs, mxArray** plhs, int nrhs, const mxArray** prhs) {
  if (setjmp(frame.back) != 0) return false;
  try {
    entry(nlhs, plhs, nrhs, prhs);
    return true;
  } catch (const Unwinding&) {
  } catch (...) {
    misuse("an exception left the module");
  }
  return false;
}

}  // namespace standin

using namespace standin;

void mexErrMsgTxt(const char* text) { endCall("", text); }

void mexErrMsgIdAndTxt(const char* identifier, const char* format, ...) {
  char text[4096];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  endCall(identifier, text);
}

int mexPrintf(const char* format, ...) {
  char text[4096];
  va_list args;
  va_start(args, format);
  const int length = std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  const Busy busy;
  output += text;
  return length;
}
