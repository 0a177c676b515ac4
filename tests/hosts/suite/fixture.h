// Every test runs twice: errors of the host unwind the stack, or jump over it. After each, what is still alive is counted.
#pragma once

#include <gtest/gtest.h>

#include "build.h"
#include "standin.h"

/// The file of the module under test.
extern std::string modulePath;

class OnMatlab : public testing::TestWithParam<standin::Errors> {
 protected:
  void SetUp() override;
  /// Clears all handles, unloads the module and counts: nothing may be alive but the values of keptValues handles.
  void TearDown() override;

  /// quarn (command, ...) with nlhs results.
  standin::Result quarn(int nlhs, const char* command, const standin::Arguments& args = {});
  /// The same for a call that must succeed; returns its first output.
  mxArray* run(const char* command, const standin::Arguments& args = {}, int nlhs = 1);
  void expectError(const char* identifier, const char* text, const char* command, const standin::Arguments& args = {}, int nlhs = 0);
  /// For texts of quarn's own: the part behind "quarn COMMAND : ".
  void expectRefusal(const char* part, const char* command, const standin::Arguments& args = {}, int nlhs = 0);

  /// A registered handle's index.
  double set(int type, mxArray* value);
  /// A chandle object whose method "remi" finds these indices.
  mxArray* handles(const build::Values& indices);

  standin::Module module{modulePath};
  /// Values of freed handles of type 1003, which stay in memory by rule.
  std::size_t keptValues = 0;
};

#define ON_MATLAB(name)                                                                                   \
  class name : public OnMatlab {};                                                                        \
  INSTANTIATE_TEST_SUITE_P(Errors, name, testing::Values(standin::Errors::unwind, standin::Errors::jump), \
                           [](const auto& p) { return p.param == standin::Errors::jump ? "Jumping" : "Unwinding"; })
