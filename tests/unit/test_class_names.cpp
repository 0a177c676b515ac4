// Names of classes where the host tells none.
#include <gtest/gtest.h>
#include <mex.h>

#include "host/arrays.h"

namespace quarn {
namespace {

TEST(ClassNames, AreThoseOfTheHost) {
  const mxClassID numbers[] = {mxDOUBLE_CLASS, mxSINGLE_CLASS, mxINT8_CLASS,   mxUINT8_CLASS, mxINT16_CLASS,
                               mxUINT16_CLASS, mxINT32_CLASS,  mxUINT32_CLASS, mxINT64_CLASS, mxUINT64_CLASS};
  for (const mxClassID id : numbers) {
    mxArray* a = mxCreateNumericMatrix(1, 1, id, mxREAL);
    ASSERT_EQ(mxGetClassID(a), id);
    EXPECT_STREQ(host::nameOfClass(id), mxGetClassName(a));
    mxDestroyArray(a);
  }
  const mwSize one[] = {1, 1};
  mxArray* others[] = {mxCreateCellMatrix(1, 1), mxCreateStructMatrix(1, 1, 0, nullptr), mxCreateLogicalArray(2, one), mxCreateString("a")};
  for (mxArray* a : others) {
    EXPECT_STREQ(host::nameOfClass(mxGetClassID(a)), mxGetClassName(a));
    mxDestroyArray(a);
  }
  EXPECT_STREQ(host::nameOfClass(mxFUNCTION_CLASS), "function_handle");
  EXPECT_STREQ(host::nameOfClass(mxUNKNOWN_CLASS), "unknown");
}

}  // namespace
}  // namespace quarn
