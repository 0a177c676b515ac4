#include "sparse/line_sums.h"

#include "sparse/dense_lines.h"

namespace quarn {

namespace {

/// Entries from which it pays to test whether a line is full.
constexpr int kWorthTesting = 16;

double scatteredSum(int n, const double* pr, const int* ir, const double* x) {
  // Partial sums 0 and 1, 2 and 3, ...
  TwoProducts s01 = twoProducts(pr, ir, x);
  TwoProducts s23 = twoProducts(pr + 2, ir + 2, x);
  TwoProducts s45 = twoProducts(pr + 4, ir + 4, x);
  TwoProducts s67 = twoProducts(pr + 6, ir + 6, x);
  const double* const end = pr + (n & ~7);
  for (pr += 8, ir += 8; pr != end; pr += 8, ir += 8) {
    s01 += twoProducts(pr, ir, x);
    s23 += twoProducts(pr + 2, ir + 2, x);
    s45 += twoProducts(pr + 4, ir + 4, x);
    s67 += twoProducts(pr + 6, ir + 6, x);
  }
  switch (n & 7) {
    case 7:
      s67 += oneProduct(pr + 6, ir + 6, x);
      [[fallthrough]];
    case 6:
      s45 += twoProducts(pr + 4, ir + 4, x);
      s23 += twoProducts(pr + 2, ir + 2, x);
      s01 += twoProducts(pr, ir, x);
      break;
    case 5:
      s45 += oneProduct(pr + 4, ir + 4, x);
      [[fallthrough]];
    case 4:
      s23 += twoProducts(pr + 2, ir + 2, x);
      s01 += twoProducts(pr, ir, x);
      break;
    case 3:
      s23 += oneProduct(pr + 2, ir + 2, x);
      [[fallthrough]];
    case 2:
      s01 += twoProducts(pr, ir, x);
      break;
    case 1:
      s01 += oneProduct(pr, ir, x);
      break;
    default:
      break;
  }
  const TwoProducts t = (s01 + s45) + (s23 + s67);
  return 0.0 + (t[0] + t[1]);
}

}  // namespace

double longLineSum(int n, const double* pr, const int* ir, const double* x) {
  if (n >= kWorthTesting && isFull(n, ir)) return denseSum(n, pr, x + ir[0]);
  return scatteredSum(n, pr, ir, x);
}

}  // namespace quarn
