// How many random cases a test tries: all of them with QUARN_FULL=1 in the environment, a fifth else.
#pragma once

#include <cstdlib>

namespace quarn::test {

inline int rounds(int all) {
  const char* full = std::getenv("QUARN_FULL");
  return full && *full ? all : all / 5;
}

}  // namespace quarn::test
