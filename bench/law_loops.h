// The bare formulas of the force laws, in loops over groups of observed values and states.
#pragma once

#include <string>
#include <vector>

namespace quarn::bench {

/// Arrays of a law over many groups, laid out as an element has them. The first n values of unl and vnl are current; committed ones lie
/// 2*n further on.
struct LawArrays {
  std::size_t n;
  std::vector<double> unl;
  std::vector<double> vnl;
  std::vector<double> snl;
  std::vector<double> opt;
};

/// One evaluation of the law of that name, one of lawNames().
void lawLoop(const std::string& law, LawArrays& a);

}  // namespace quarn::bench
