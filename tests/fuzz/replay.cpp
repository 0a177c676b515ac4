// Runs a target once on every file of the given directories, and then on N more inputs that are made from them:
// TARGET [--made N] DIRECTORY...
// The inputs made are the same in every run, on every machine: nothing that is measured while running decides what comes next.
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "change.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr unsigned longestSeconds = 60;
constexpr std::size_t longestInput = 400;

std::vector<std::filesystem::path> filesOf(const char* directory) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

/// An input that takes too long ends the program with SIGALRM, after its name.
void run(const fuzz::Input& input) {
  alarm(longestSeconds);
  LLVMFuzzerTestOneInput(input.data(), input.size());
  alarm(0);
}

/// What broke can be run again alone, by its name in a directory of its own; a pass leaves nothing.
void runMade(const fuzz::Input& input, const std::string& name) {
  std::ofstream(name, std::ios::binary).write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
  run(input);
}

}  // namespace

int main(int argc, char** argv) {
  const bool making = argc > 2 && std::strcmp(argv[1], "--made") == 0;
  const long made = making ? std::atol(argv[2]) : 0;
  std::vector<fuzz::Input> corpus;
  for (int k = making ? 3 : 1; k < argc; ++k) {
    for (const auto& path : filesOf(argv[k])) {
      std::ifstream file(path, std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
      corpus.emplace_back(bytes.begin(), bytes.end());
      std::printf("%s\n", path.filename().c_str());
      std::fflush(stdout);
      run(corpus.back());
    }
  }
  std::printf("%zu inputs\n", corpus.size());
  if (corpus.empty()) return 1;

  fuzz::Random random;
  const std::string last = "last-input-of-" + std::filesystem::path(argv[0]).filename().string();
  for (long k = 0; k < made; ++k) runMade(fuzz::changed(corpus, random, longestInput), last);
  if (made > 0) {
    std::filesystem::remove(last);
    std::printf("%ld inputs made of them\n", made);
  }
  return 0;
}
