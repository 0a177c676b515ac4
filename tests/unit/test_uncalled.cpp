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

TEST(KorvResidual, ChecksAndAddsOneTerm) {
  const char* names[] = {"pr", "ir", "jc"};
  mxArray* k = mxCreateStructMatrix(1, 1, 3, names);
  mxArray* pr = mxCreateDoubleMatrix(2, 1, mxREAL);
  mxArray* ir = mxCreateNumericMatrix(2, 1, mxINT32_CLASS, mxREAL);
  mxArray* jc = mxCreateNumericMatrix(3, 1, mxINT32_CLASS, mxREAL);
  for (int i = 0; i < 3; ++i) {
    static_cast<int*>(mxGetData(jc))[i] = i;
    if (i == 2) break;
    mxGetPr(pr)[i] = 2.0 + i;
    static_cast<int*>(mxGetData(ir))[i] = i;
  }
  mxSetField(k, 0, "pr", pr);
  mxSetField(k, 0, "ir", ir);
  mxSetField(k, 0, "jc", jc);
  mxArray* K = mxCreateCellMatrix(1, 3);
  mxSetCell(K, 2, k);
  double u[2] = {10, 100};
  ROr context;
  context.N = 2;
  context.u = u;
  context.uLen = 2;
  double r[2] = {1, 1};
  KorvResidual(-1, context, K, {r, 2});
  EXPECT_EQ(r[0], 21.0);
  EXPECT_EQ(r[1], 301.0);
  EXPECT_EQ(hostOutput([&] {
              KorvResidual(-1, context, K, {r, 1});
            }).error,
            "quarn  : r must hold 2 values (one for each row of u), got 1");
  mxDestroyArray(K);
}

}  // namespace
}  // namespace quarn
