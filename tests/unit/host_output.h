// What a piece of code prints, raises and calls through the host's functions. Defined beside each main function of the unit tests.
#pragma once

#include <functional>
#include <string>

struct HostOutput {
  std::string printed;
  std::string error;  ///< text of the error that ended it; empty for none
};

HostOutput hostOutput(const std::function<void()>& code);

/// Defines a function of the host's language that prints its name and its argument, a number, if it is given one. Hides what else has the
/// name.
void definePrinting(const std::string& name);
