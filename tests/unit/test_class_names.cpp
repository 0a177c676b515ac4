// Names of classes where the host tells none.
#include <gtest/gtest.h>
#include <mex.h>

#include <utility>

#include "host/arrays.h"

namespace quarn {
namespace {

/// Octave 11 tells no name of some arrays: there it is this one that errors say.
void expectName(mxArray* a, const char* name) {
  EXPECT_STREQ(host::nameOfClass(mxGetClassID(a)), name);
  if (const char* told = mxGetClassName(a)) {
    EXPECT_STREQ(told, name);
  }
  mxDestroyArray(a);
}

TEST(ClassNames, AreThoseOfTheHost) {
  const std::pair<mxClassID, const char*> numbers[] = {{mxDOUBLE_CLASS, "double"}, {mxSINGLE_CLASS, "single"}, {mxINT8_CLASS, "int8"},
                                                       {mxUINT8_CLASS, "uint8"},   {mxINT16_CLASS, "int16"},   {mxUINT16_CLASS, "uint16"},
                                                       {mxINT32_CLASS, "int32"},   {mxUINT32_CLASS, "uint32"}, {mxINT64_CLASS, "int64"},
                                                       {mxUINT64_CLASS, "uint64"}};
  for (const auto& [id, name] : numbers) {
    mxArray* a = mxCreateNumericMatrix(1, 1, id, mxREAL);
    ASSERT_EQ(mxGetClassID(a), id);
    expectName(a, name);
  }
  const mwSize one[] = {1, 1};
  expectName(mxCreateCellMatrix(1, 1), "cell");
  expectName(mxCreateStructMatrix(1, 1, 0, nullptr), "struct");
  expectName(mxCreateLogicalArray(2, one), "logical");
  expectName(mxCreateString("a"), "char");
  EXPECT_STREQ(host::nameOfClass(mxFUNCTION_CLASS), "function_handle");
  EXPECT_STREQ(host::nameOfClass(mxUNKNOWN_CLASS), "unknown");
}

}  // namespace
}  // namespace quarn
