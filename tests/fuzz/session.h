// One input is one session: a few commands on one module, then everything is taken away and counted.
#pragma once

#include "models.h"

namespace fuzz {

class Session {
 public:
  /// Takes how errors leave the module from the input, and defines the functions that the module calls.
  explicit Session(Bytes& source);
  /// Clears the registry and the host; ends the process if anything stays behind.
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Calls a command. A null argument becomes an empty matrix. Ends the process where an error has no text.
  standin::Result call(const char* command, standin::Arguments args, int nlhs);
  /// A "chandle" vector of up to three of the registered handles.
  mxArray* handles();
  /// Lets an allocation of the following calls fail, now and then.
  void perhapsFailAllocation();
  void set(int type, mxArray* value);

  Maker make;
  Bytes& in;

 private:
  std::vector<double> known;
};

}  // namespace fuzz
