// Unit tests run inside an interpreter of the host, since its print and error functions need one.
#include <gtest/gtest.h>
#include <octave/oct.h>

#include <octave/error.h>
#include <octave/interpreter.h>
#include <octave/pager.h>
#include <octave/parse.h>

#include "host_output.h"

HostOutput hostOutput(const std::function<void()>& code) {
  HostOutput out;
  testing::internal::CaptureStdout();
  try {
    code();
  } catch (const octave::execution_exception& e) {
    // The host puts the name of the running function in front; none is running.
    const std::string nobody = "unknown: ";
    out.error = e.message();
    if (out.error.rfind(nobody, 0) == 0) out.error.erase(0, nobody.size());
  }
  octave_stdout << std::flush;
  out.printed = testing::internal::GetCapturedStdout();
  return out;
}

void definePrinting(const std::string& name) {
  const std::string words = "strjoin ([{'" + name + "'}, cellfun(@num2str, varargin, 'UniformOutput', false)])";
  octave::feval("eval", octave_value("function " + name + " (varargin), disp (" + words + "); end"));
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  octave::interpreter interpreter;
  interpreter.initialize_history(false);
  interpreter.initialize();
  return RUN_ALL_TESTS();
}
