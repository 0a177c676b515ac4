#include <gtest/gtest.h>

#include <string>

#include "host_output.h"
#include "uncalled/uncalled.h"

namespace quarn {
namespace {

TEST(DoFlush, DrawsAndThenPausesForTenMicroseconds) {
  definePrinting("drawnow");
  definePrinting("pause");
  EXPECT_EQ(hostOutput(doFlush).printed, "drawnow\npause 1e-05\n");
}

TEST(KorvResidual, PrintsAndRefusesACodeThatIsNoTerm) {
  mxArray* K = mxCreateCellMatrix(1, 3);
  double r[1] = {7};
  for (const int code : {-4, 0, 1}) {
    const HostOutput out = hostOutput([&] { KorvResidual(code, ROr{}, K, {r, 1}); });
    EXPECT_EQ(out.printed, "Type " + std::to_string(code));
    EXPECT_EQ(out.error, "Not a supported residual");
  }
  EXPECT_EQ(r[0], 7.0);
  mxDestroyArray(K);
}

}  // namespace
}  // namespace quarn
