// New inputs out of old ones, by a generator of its own: the same on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fuzz {

using Input = std::vector<std::uint8_t>;

/// Steele, Lea and Flood, "Fast splittable pseudorandom number generators" (2014), with a fixed start.
class Random {
 public:
  std::uint64_t next() {
    std::uint64_t z = (state += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
  }
  /// 0 ... n-1
  std::size_t below(std::size_t n) { return static_cast<std::size_t>(next() % n); }

 private:
  std::uint64_t state = 1;
};

/// The front of one input and the rest of another, or fresh bytes, with one to eight bytes changed, put in or taken out.
inline Input changed(const std::vector<Input>& corpus, Random& random, std::size_t longest) {
  const auto byte = [&] { return static_cast<std::uint8_t>(random.below(256)); };
  Input input;
  if (random.below(8) == 0) {
    for (std::size_t k = random.below(longest); k > 0; --k) input.push_back(byte());
    return input;
  }
  input = corpus[random.below(corpus.size())];
  if (random.below(4) == 0) {
    const Input& other = corpus[random.below(corpus.size())];
    input.resize(random.below(input.size() + 1));
    input.insert(input.end(), other.begin() + static_cast<std::ptrdiff_t>(random.below(other.size() + 1)), other.end());
  }
  for (std::size_t changes = 1 + random.below(8); changes > 0; --changes) {
    const std::size_t place = random.below(input.size() + 1);
    const auto at = input.begin() + static_cast<std::ptrdiff_t>(place);
    const std::size_t kind = random.below(8);
    if (kind == 0 || at == input.end()) {
      input.insert(at, byte());
    } else if (kind == 1) {
      input.erase(at);
    } else {
      *at = byte();
    }
  }
  if (input.size() > longest) input.resize(longest);
  return input;
}

}  // namespace fuzz
