// The unit tests on the stand-in host.
#include <gtest/gtest.h>

#include "host_output.h"
#include "standin.h"

HostOutput hostOutput(const std::function<void()>& code) {
  HostOutput out;
  standin::printed();
  try {
    code();
  } catch (const standin::Error& e) {
    out.error = e.text;
  }
  out.printed = standin::printed();
  return out;
}

void definePrinting(const std::string& name) {
  standin::define(name, [name](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    mexPrintf(args.empty() ? "%s\n" : "%s %g\n", name.c_str(), args.empty() ? 0.0 : mxGetScalar(args[0]));
    return {};
  });
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const int failed = RUN_ALL_TESTS();
  standin::clearWorkspace();
  return failed;
}
