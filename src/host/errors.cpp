#include "host/errors.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "host/user_code.h"

namespace quarn::host {

namespace {
const char* commandWord = "";
int listElement = 0;
}  // namespace

void setCommand(const char* word) noexcept {
  commandWord = word;
  listElement = 0;
}

void setElement(int element) noexcept { listElement = element; }

void callHost(int nlhs, mxArray* plhs[], int nrhs, mxArray* prhs[], const char* function) {
  const char* word = commandWord;
  const int element = listElement;
  const UserCode running;
  mexCallMATLAB(nlhs, plhs, nrhs, prhs, function);
  commandWord = word;
  listElement = element;
}

void fail(const char* identifier, const char* text) {
  mexErrMsgIdAndTxt(identifier, "%s", text);
  std::abort();  // not reached: the host's error call does not return
}

void fail(const char* text) {
  mexErrMsgTxt(text);
  std::abort();
}

void refuse(const char* format, ...) {
  char text[512];
  int used = std::snprintf(text, sizeof text, "quarn %s : ", commandWord);
  if (listElement > 0) used += std::snprintf(text + used, sizeof text - static_cast<std::size_t>(used), "element %d : ", listElement);
  va_list args;
  va_start(args, format);
  std::vsnprintf(text + used, sizeof text - static_cast<std::size_t>(used), format, args);
  va_end(args);
  fail(text);
}

}  // namespace quarn::host
