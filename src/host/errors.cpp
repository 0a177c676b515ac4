#include "host/errors.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "host/user_code.h"

namespace quarn::host {

namespace {

/// Where the call is, for the texts of refuse().
struct Place {
  const char* command = "";
  const char* part = "";
  int number = 0;
};
Place place;

}  // namespace

void setCommand(const char* word) noexcept { place = {word, "", 0}; }

void setPart(const char* word, int number) noexcept {
  place.part = word;
  place.number = number;
}

void callHost(int nlhs, mxArray* plhs[], int nrhs, mxArray* prhs[], const char* function) {
  const Place ours = place;
  const UserCode running;
  mexCallMATLAB(nlhs, plhs, nrhs, prhs, function);
  place = ours;
}

void fail(const FixedError& error) {
  if (error.identifier) {
    mexErrMsgIdAndTxt(error.identifier, "%s", error.text);
  } else {
    mexErrMsgTxt(error.text);
  }
  std::abort();  // not reached: the host's error calls do not return
}

void refuse(const char* format, ...) {
  char text[512];
  int used = std::snprintf(text, sizeof text, "quarn %s : ", place.command);
  if (place.number > 0)
    used += std::snprintf(text + used, sizeof text - static_cast<std::size_t>(used), "%s %d : ", place.part, place.number);
  va_list args;
  va_start(args, format);
  std::vsnprintf(text + used, sizeof text - static_cast<std::size_t>(used), format, args);
  va_end(args);
  mexErrMsgTxt(text);
  std::abort();
}

}  // namespace quarn::host
