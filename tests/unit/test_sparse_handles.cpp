#include <gtest/gtest.h>

#include "host_output.h"
#include "integration/sparse_handles.h"

namespace quarn {
namespace {

TEST(SparseMass, ADenseMatrixIsRefusedAgainWhereItsResidualIsFormed) {
  mxArray* matrix = mxCreateDoubleMatrix(2, 2, mxREAL);
  double u[2] = {1, 2};
  ROr c;
  c.N = 2;
  c.u = c.v = c.a = u;
  c.uLen = c.vLen = c.aLen = 2;
  chandleSparseMass mass;
  mass.set_val(2, matrix);
  EXPECT_EQ(hostOutput([&] { mass.initCpt(); }).error, "Error not a valid mass");
  EXPECT_EQ(hostOutput([&] { mass.checkSizes(c, 2); }).error, "Implemented for sparse matrices");
  c.a = nullptr;
  EXPECT_EQ(hostOutput([&] { mass.checkSizes(c, 2); }).error, "");
}

}  // namespace
}  // namespace quarn
