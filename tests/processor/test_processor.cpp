// Every processor version of the kernels gives the same bits, and so does the one that was chosen when the program was loaded.
#include <gtest/gtest.h>

#include <cstring>

#include "processor/kernel_numbers.h"

namespace {

const int sizes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 257, 1000};

void expectSameBits(std::vector<double> (*version)(int)) {
  for (const int n : sizes) {
    const auto wanted = kernelNumbersV1(n);
    const auto got = version(n);
    ASSERT_EQ(got.size(), wanted.size());
    EXPECT_EQ(std::memcmp(got.data(), wanted.data(), got.size() * sizeof(double)), 0) << n << " modes";
  }
}

TEST(Processor, VersionForX8664V3HasTheBitsOfTheBaseVersion) {
  if (!__builtin_cpu_supports("x86-64-v3")) GTEST_SKIP() << "this processor cannot run it";
  expectSameBits(kernelNumbersV3);
}

TEST(Processor, VersionForX8664V4HasTheBitsOfTheBaseVersion) {
  if (!__builtin_cpu_supports("x86-64-v4")) GTEST_SKIP() << "this processor cannot run it";
  expectSameBits(kernelNumbersV4);
}

TEST(Processor, VersionChosenAtLoadTimeHasTheBitsOfTheBaseVersion) { expectSameBits(kernelNumbersDispatched); }

}  // namespace
