#include "sparse/projection_kernels.h"

#include <algorithm>
#include <cstring>

#include "numbers/processor.h"
#include "sparse/line_sums.h"

namespace quarn {

namespace {

// Pairs of columns are summed side by side in tiles of this size: independent sums, one vector register each four (or eight) of
// them. Bases are padded to whole tiles; the sums of the padding are dropped.
constexpr std::size_t kTileA = 4;
constexpr std::size_t kTileB = 8;
// Lines that are handled together, so that a tile's sums stay in registers: line products and a copy of b's rows fit in cache.
constexpr std::size_t kBlock = 64;
// Columns that they are multiplied with at a time, so that what they gather fits in the first-level cache.
constexpr std::size_t kColumns = 8;

constexpr std::size_t padded(std::size_t n, std::size_t tile) { return (n + tile - 1) / tile * tile; }

/// g[j] = line i . base(:, j), j = 0 ... n-1; columns are ld values apart.
void lineProducts(double* g, const SparseLines& s, std::size_t i, const double* base, std::size_t ld, std::size_t n) {
  const int first = s.jc[i];
  const int entries = s.jc[i + 1] - first;
  const double* val = s.pr + first;
  const int* ind = s.ir + first;
  std::size_t j = 0;
  if (isFull(entries, ind)) {
    for (; j < n; ++j) g[j] = denseSum(entries, val, base + j * ld + ind[0]);
    return;
  }
#ifndef QUARN_WITH_MKL
  // The cblas_ddoti that quarn brings sums in index order, which four columns can do at the same time.
  for (; j + 4 <= n; j += 4) {
    const double* c = base + j * ld;
    double sum[4] = {0.0, 0.0, 0.0, 0.0};
    for (int k = 0; k < entries; ++k) {
      const double x = val[k];
      const auto at = static_cast<std::size_t>(ind[k]);
      sum[0] += x * c[at];
      sum[1] += x * c[ld + at];
      sum[2] += x * c[2 * ld + at];
      sum[3] += x * c[3 * ld + at];
    }
    std::copy(sum, sum + 4, g + j);
  }
#endif
  for (; j < n; ++j) g[j] = lineSum(entries, val, ind, base + j * ld);
}

/// Neighbours in a row of a tile, which a compiler keeps in registers; it splits them where the processor's are shorter.
constexpr std::size_t kLane = 4;
using Lane [[gnu::vector_size(kLane * sizeof(double))]] = double;

/// acc(a, b) += sum of g(l, a) * t(l, b) over the lines l in ascending order, for one tile.
QUARN_PROCESSOR_VERSIONS
void addTile(double* acc, std::size_t ldAcc, const double* g, std::size_t ldG, const double* t, std::size_t ldT, std::size_t lines) {
  Lane low[kTileA];
  Lane high[kTileA];
  static_assert(kTileB == 2 * kLane);
  for (std::size_t a = 0; a < kTileA; ++a) {
    std::memcpy(&low[a], acc + a * ldAcc, sizeof(Lane));
    std::memcpy(&high[a], acc + a * ldAcc + kLane, sizeof(Lane));
  }
  for (std::size_t l = 0; l < lines; ++l, g += ldG, t += ldT) {
    Lane b[2];
    std::memcpy(b, t, sizeof b);
    for (std::size_t a = 0; a < kTileA; ++a) {
      low[a] += g[a] * b[0];
      high[a] += g[a] * b[1];
    }
  }
  for (std::size_t a = 0; a < kTileA; ++a) {
    std::memcpy(acc + a * ldAcc, &low[a], sizeof(Lane));
    std::memcpy(acc + a * ldAcc + kLane, &high[a], sizeof(Lane));
  }
}

/// One sum over the lines for all pairs: acc(a, b) += sign * (column b of base) . (line products of column a).
struct Term {
  const double* base;
  double sign;
  double* acc;
};

struct Sizes {
  std::size_t padA;
  std::size_t padB;
};

void addBlock(const Term& term, const DenseBase& b, std::size_t first, std::size_t lines, const double* g, double* rowsOfB, Sizes pad) {
  for (std::size_t j = 0; j < b.cols; ++j) {
    const double* column = term.base + j * b.rows + first;
    for (std::size_t l = 0; l < lines; ++l) rowsOfB[l * pad.padB + j] = term.sign * column[l];
  }
  for (std::size_t a = 0; a < pad.padA; a += kTileA) {
    for (std::size_t j = 0; j < pad.padB; j += kTileB) {
      addTile(term.acc + a * pad.padB + j, pad.padB, g + a, pad.padA, rowsOfB + j, pad.padB, lines);
    }
  }
}

/// Forms the line products of one part of a base (re or im) and adds the terms that they occur in.
void addPart(const double* part, const Term* terms, int nTerms, const DenseBase& a, const DenseBase& b, const SparseLines& s, std::size_t n,
             double* g, double* rowsOfB, Sizes pad) {
  for (std::size_t first = 0; first < n; first += kBlock) {
    const std::size_t lines = std::min(kBlock, n - first);
    for (std::size_t j = 0; j < a.cols; j += kColumns) {
      const std::size_t columns = std::min(kColumns, a.cols - j);
      for (std::size_t l = 0; l < lines; ++l) lineProducts(g + l * pad.padA + j, s, first + l, part + j * a.rows, a.rows, columns);
    }
    for (int t = 0; t < nTerms; ++t) addBlock(terms[t], b, first, lines, g, rowsOfB, pad);
  }
}

void store(double* out, const double* acc, std::size_t nA, std::size_t nB, std::size_t padB) {
  for (std::size_t i = 0; i < nA; ++i) {
    for (std::size_t j = 0; j < nB; ++j) out[i + j * nB] = acc[i * padB + j];
  }
}

}  // namespace

void projectLines(double* p, const DenseBase& a, const SparseLines& s, std::size_t lines) {
  for (std::size_t i = 0; i < lines; ++i) lineProducts(p + i * a.cols, s, i, a.re, a.rows, a.cols);
}

std::size_t bilinearWork(std::size_t nA, std::size_t nB) {
  const std::size_t padA = padded(nA, kTileA);
  const std::size_t padB = padded(nB, kTileB);
  return 2 * padA * padB + kBlock * (padA + padB);
}

void bilinearForms(double* outR, double* outI, const DenseBase& a, const DenseBase& b, const SparseLines& s, std::size_t n, double* work) {
  const Sizes pad{padded(a.cols, kTileA), padded(b.cols, kTileB)};
  std::fill(work, work + bilinearWork(a.cols, b.cols), 0.0);
  double* accR = work;
  double* accI = accR + pad.padA * pad.padB;
  double* g = accI + pad.padA * pad.padB;
  double* rowsOfB = g + kBlock * pad.padA;

  // Every sum of a pair continues in line order what the sums before it left, so the two parts of a are one after the other.
  const Term withReal[] = {{b.re, 1.0, accR}, {b.im, 1.0, accI}};
  addPart(a.re, withReal, b.im ? 2 : 1, a, b, s, n, g, rowsOfB, pad);
  const Term withImaginary[] = {{b.re, 1.0, accI}, {b.im, -1.0, accR}};
  if (a.im) addPart(a.im, withImaginary, b.im ? 2 : 1, a, b, s, n, g, rowsOfB, pad);

  store(outR, accR, a.cols, b.cols, pad.padB);
  if (outI) store(outI, accI, a.cols, b.cols, pad.padB);
}

}  // namespace quarn
