// The unit tests on the stand-in host.
#include <gtest/gtest.h>

#include "standin.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const int failed = RUN_ALL_TESTS();
  standin::clearWorkspace();
  return failed;
}
