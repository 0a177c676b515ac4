// Plays MATLAB: quarn_matlab_host MODULE [gtest options]
#include <cstdio>

#include "fixture.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s MODULE [gtest options]\n", argv[0]);
    return 2;
  }
  modulePath = argv[1];
  return RUN_ALL_TESTS();
}
