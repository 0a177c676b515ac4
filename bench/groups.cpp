#include "groups.h"

#include <cstring>

namespace quarn::bench {

bool runGroup(const char* name) {
  struct Group {
    const char* name;
    void (*run)();
  };
  constexpr Group groups[] = {
      {"product", benchProduct},
      {"modes", benchModes},
      {"gain", benchGain},
      {"handles", benchHandles},
      {"modal elements", benchModalElements},
      {"laws", benchLaws},
      {"tables", benchTables},
      {"projections", benchProjections},
      {"guards", benchGuards},
      {"equations", benchEquations},
  };
  for (const Group& g : groups) {
    if (std::strcmp(g.name, name) == 0) {
      g.run();
      return true;
    }
  }
  return false;
}

}  // namespace quarn::bench
