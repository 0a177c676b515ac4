// Unit tests run inside an interpreter of the host, since its print and error functions need one.
#include <gtest/gtest.h>
#include <octave/oct.h>

#include <octave/interpreter.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  octave::interpreter interpreter;
  interpreter.initialize_history(false);
  interpreter.initialize_load_path(false);
  interpreter.initialize();
  return RUN_ALL_TESTS();
}
