#include <gtest/gtest.h>

#include "host_output.h"
#include "integration/diag_newmark.h"

namespace quarn {
namespace {

TEST(DoFlush, DrawsAndThenPausesForTenMicroseconds) {
  definePrinting("drawnow");
  definePrinting("pause");
  EXPECT_EQ(hostOutput(doFlush).printed, "drawnow\npause 1e-05\n");
}

}  // namespace
}  // namespace quarn
