#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "host_output.h"
#include "sparse/sparse_view.h"
#include "uncalled/uncalled.h"

namespace quarn {
namespace {

mxArray* doubles(const std::vector<double>& values) {
  mxArray* a = mxCreateDoubleMatrix(static_cast<mwSize>(values.size()), 1, mxREAL);
  if (!values.empty()) std::memcpy(mxGetPr(a), values.data(), values.size() * sizeof(double));
  return a;
}

mxArray* int32s(const std::vector<int>& values) {
  mxArray* a = mxCreateNumericMatrix(static_cast<mwSize>(values.size()), 1, mxINT32_CLASS, mxREAL);
  std::memcpy(mxGetData(a), values.data(), values.size() * sizeof(int));
  return a;
}

struct Slots {
  void* ptrs[3] = {nullptr, nullptr, nullptr};
  int dims[3] = {70, 71, 72};
  explicit Slots(const mxArray* a) { korv_mkl_get_sparse(a, ptrs, dims); }
};

class KorvMklGetSparse : public testing::Test {
 protected:
  KorvMklGetSparse() {
    const char* names[] = {"pr", "ir", "jc", "dims", "trans"};
    matrix = mxCreateStructMatrix(1, 1, 5, names);
  }
  ~KorvMklGetSparse() override { mxDestroyArray(matrix); }
  void set(const char* name, mxArray* value) { mxSetField(matrix, 0, name, value); }
  mxArray* get(const char* name) { return mxGetField(matrix, 0, name); }

  mxArray* matrix;
};

TEST_F(KorvMklGetSparse, FillsTheSlotsInOrder) {
  set("pr", doubles({4, 5}));
  set("ir", int32s({0, 2}));
  set("jc", int32s({0, 1, 2}));
  set("dims", doubles({2.9, 3.1}));
  set("trans", doubles({1}));
  const Slots s(matrix);
  EXPECT_EQ(s.ptrs[0], mxGetData(get("ir")));
  EXPECT_EQ(s.ptrs[1], mxGetData(get("jc")));
  EXPECT_EQ(s.ptrs[2], mxGetPr(get("pr")));
  EXPECT_EQ(s.dims[0], 2);
  EXPECT_EQ(s.dims[1], 3);
  EXPECT_EQ(s.dims[2], 1);
}

TEST_F(KorvMklGetSparse, AStructureWithoutValuesLeavesTheSizeAsItWas) {
  set("dims", doubles({2, 3}));
  set("trans", doubles({1}));
  const Slots s(matrix);
  for (const void* slot : s.ptrs) EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(s.dims[0], 70);
  EXPECT_EQ(s.dims[1], 71);
  EXPECT_EQ(s.dims[2], 0);
}

TEST_F(KorvMklGetSparse, AFullMatrixHasNoIndices) {
  mxArray* full = mxCreateDoubleMatrix(4, 5, mxREAL);
  const Slots s(full);
  EXPECT_EQ(s.ptrs[0], nullptr);
  EXPECT_EQ(s.ptrs[1], nullptr);
  EXPECT_EQ(s.ptrs[2], mxGetPr(full));
  EXPECT_EQ(s.dims[0], 4);
  EXPECT_EQ(s.dims[1], 5);
  EXPECT_EQ(s.dims[2], 0);
  mxDestroyArray(full);
}

TEST_F(KorvMklGetSparse, RefusesAMatrixOfTheHostsOwnKind) {
  mxArray* sparse = mxCreateSparse(2, 2, 1, mxREAL);
  EXPECT_EQ(hostOutput([&] { const Slots s(sparse); }).error, "ir must be int32");
  mxDestroyArray(sparse);
}

TEST(PmatGetPr, GivesTheDataOfADoubleArray) {
  mxArray* a = doubles({1, 2, 3});
  EXPECT_EQ(pmatGetPr(a), mxGetPr(a));
  EXPECT_EQ(pmatGetPr(a)[2], 3.0);
  mxDestroyArray(a);
  mxArray* none = doubles({});
  EXPECT_EQ(pmatGetPr(none), nullptr);
  mxDestroyArray(none);
}

}  // namespace
}  // namespace quarn
