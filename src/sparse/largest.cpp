#include "sparse/largest.h"

#include <algorithm>

#include "numbers/processor.h"

namespace quarn {

QUARN_PROCESSOR_VERSIONS
unsigned largestOf(const int* ir, int n) {
  unsigned largest = 0;
  for (int k = 0; k < n; ++k) largest = std::max(largest, static_cast<unsigned>(ir[k]));
  return largest;
}

}  // namespace quarn
