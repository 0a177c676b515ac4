// A look at many indices at once.
#pragma once

namespace quarn {

/// Largest of n indices read without their sign, where negative ones are the largest of all; 0 for none.
unsigned largestOf(const int* ir, int n);

}  // namespace quarn
