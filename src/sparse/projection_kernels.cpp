#include "sparse/projection_kernels.h"

#include <algorithm>
#include <cstring>

#include "numbers/processor.h"

namespace quarn {

namespace {

// Pairs of columns are summed side by side in tiles of this size: independent sums, one vector register each two, four or eight of
// them. Bases are padded to whole tiles; the sums of the padding are dropped.
constexpr std::size_t kTileA = 4;
constexpr std::size_t kTileB = 8;
// Lines that are handled together, so that a tile's sums stay in registers: line products and a copy of b's rows fit in cache.
constexpr std::size_t kBlock = 128;

constexpr std::size_t padded(std::size_t n, std::size_t tile) { return (n + tile - 1) / tile * tile; }

/// A row of a tile, which a compiler keeps in registers; it splits it where the processor's are shorter.
using Row [[gnu::vector_size(kTileB * sizeof(double))]] = double;

/// acc(a, b) += sum of g(l, a) * t(l, b) over the lines l in ascending order, for one tile.
QUARN_PROCESSOR_VERSIONS
void addTile(double* acc, std::size_t ldAcc, const double* g, std::size_t ldG, const double* t, std::size_t ldT, std::size_t lines) {
  Row sum[kTileA];
  for (std::size_t a = 0; a < kTileA; ++a) std::memcpy(&sum[a], acc + a * ldAcc, sizeof(Row));
  for (std::size_t l = 0; l < lines; ++l, g += ldG, t += ldT) {
    Row b;
    std::memcpy(&b, t, sizeof b);
    for (std::size_t a = 0; a < kTileA; ++a) sum[a] += g[a] * b;
  }
  for (std::size_t a = 0; a < kTileA; ++a) std::memcpy(acc + a * ldAcc, &sum[a], sizeof(Row));
}

/// rows(l, j) = sign * column j, row first + l, for a block of lines; rows are ldRows values apart. Four columns at a time, so that what is
/// written lies together.
QUARN_PROCESSOR_VERSIONS
void copyRows(double* __restrict rows, std::size_t ldRows, double sign, const Columns& columns, std::size_t first, std::size_t lines) {
  std::size_t j = 0;
  for (; j + 4 <= columns.count; j += 4) {
    const double* __restrict from = columns.values + j * columns.ld + first;
    for (std::size_t l = 0; l < lines; ++l) {
      for (std::size_t c = 0; c < 4; ++c) rows[l * ldRows + j + c] = sign * from[l + c * columns.ld];
    }
  }
  for (; j < columns.count; ++j) {
    const double* from = columns.values + j * columns.ld + first;
    for (std::size_t l = 0; l < lines; ++l) rows[l * ldRows + j] = sign * from[l];
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
  copyRows(rowsOfB, pad.padB, term.sign, {term.base, b.rows, b.cols}, first, lines);
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
    columnSums(g, pad.padA, s, first, lines, {part, a.rows, a.cols});
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
  for (std::size_t first = 0; first < lines; first += kBlock) {
    columnSums(p + first * a.cols, a.cols, s, first, std::min(kBlock, lines - first), {a.re, a.rows, a.cols});
  }
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
