// What a piece of code prints and raises through the host's functions. Defined beside each main function of the unit tests.
#pragma once

#include <functional>
#include <string>

struct HostOutput {
  std::string printed;
  std::string error;  ///< text of the error that ended it; empty for none
};

HostOutput hostOutput(const std::function<void()>& code);
