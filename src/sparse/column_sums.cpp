#include "sparse/column_sums.h"

#include <cstring>

#include "numbers/processor.h"
#include "numbers/vectors.h"
#include "sparse/dense_lines.h"
#include "sparse/line_sums.h"

namespace quarn {

namespace {

constexpr std::size_t kSideBySide = 4;
/// Columns that are summed like four, one of them twice: still quicker than one after the other.
constexpr std::size_t kNearly = 3;
/// A value for each of four columns; a compiler splits them where the processor's registers are shorter.
using Four [[gnu::vector_size(kSideBySide * sizeof(double))]] = double;

/// A line and the four columns that it is summed with, in the order of line_sums.h.
struct FourSums {
  int n;
  const double* pr;
  const int* ir;
  // Not an array, which compilers keep in memory.
  const double* a;
  const double* b;
  const double* c;
  const double* d;

  [[gnu::always_inline]] inline void product(Four& to, int k) const {
    const auto at = static_cast<std::size_t>(ir[k]);
    to = pr[k] * Four{a[at], b[at], c[at], d[at]};
  }
  [[gnu::always_inline]] inline void add(Four& sum, int k) const {
    Four more;
    product(more, k);
    sum += more;
  }
  template <int kEntries>
  [[gnu::always_inline]] inline void products(Four* p) const {
    for (int k = 0; k < kEntries; ++k) product(p[k], k);
  }

  /// Up to seven entries.
  [[gnu::always_inline]] inline void sumFew(Four& sum) const {
    Four p[7];
    switch (n) {
      case 1:
        products<1>(p);
        sum = p[0];
        break;
      case 2:
        products<2>(p);
        sum = p[0] + p[1];
        break;
      case 3:
        products<3>(p);
        sum = (p[0] + p[2]) + p[1];
        break;
      case 4:
        products<4>(p);
        sum = (p[0] + p[2]) + (p[1] + p[3]);
        break;
      case 5:
        products<5>(p);
        sum = ((p[0] + p[4]) + p[2]) + (p[1] + p[3]);
        break;
      case 6:
        products<6>(p);
        sum = ((p[0] + p[4]) + p[2]) + ((p[1] + p[5]) + p[3]);
        break;
      case 7:
        products<7>(p);
        sum = ((p[0] + p[4]) + (p[2] + p[6])) + ((p[1] + p[5]) + p[3]);
        break;
      default:
        sum = Four{};
        break;
    }
  }

  /// Eight or more.
  [[gnu::always_inline]] inline void sumMany(Four& sum) const {
    Four s[8];
    products<8>(s);
    int k = 8;
    for (; k + 8 <= n; k += 8) {
      for (int j = 0; j < 8; ++j) add(s[j], k + j);
    }
    switch (n - k) {
      case 7:
        add(s[6], k + 6);
        [[fallthrough]];
      case 6:
        add(s[5], k + 5);
        [[fallthrough]];
      case 5:
        add(s[4], k + 4);
        [[fallthrough]];
      case 4:
        add(s[3], k + 3);
        [[fallthrough]];
      case 3:
        add(s[2], k + 2);
        [[fallthrough]];
      case 2:
        add(s[1], k + 1);
        [[fallthrough]];
      case 1:
        add(s[0], k);
        break;
      default:
        break;
    }
    sumOfEight(sum, s);
  }

  template <std::size_t kKept>
  [[gnu::always_inline]] inline void run(double* to) const {
    Four sum;
    if (n < 8) {
      sumFew(sum);
    } else {
      sumMany(sum);
    }
    sum = 0.0 + sum;
    std::memcpy(to, &sum, kKept * sizeof(double));
  }
};

/// The first kKept sums of each line.
template <std::size_t kKept>
[[gnu::always_inline]] inline void sumsOfLines(double* g, std::size_t ldG, const SparseLines& s, const int* jc, std::size_t lines,
                                               const double* values, std::size_t ld) {
  for (std::size_t l = 0; l < lines; ++l) {
    const int k = jc[l];
    const FourSums line{jc[l + 1] - k, s.pr + k, s.ir + k, values, values + ld, values + 2 * ld, values + (kKept - 1) * ld};
    line.run<kKept>(g + l * ldG);
  }
}

QUARN_PROCESSOR_VERSIONS
void fourColumnSums(double* g, std::size_t ldG, const SparseLines s, const int* jc, std::size_t lines, const double* values,
                    std::size_t ld) {
  sumsOfLines<kSideBySide>(g, ldG, s, jc, lines, values, ld);
}

QUARN_PROCESSOR_VERSIONS
void threeColumnSums(double* g, std::size_t ldG, const SparseLines s, const int* jc, std::size_t lines, const double* values,
                     std::size_t ld) {
  sumsOfLines<kNearly>(g, ldG, s, jc, lines, values, ld);
}

int entries(const SparseLines& s, std::size_t line) { return s.jc[line + 1] - s.jc[line]; }

/// The sums of one line, column after column.
void oneByOne(double* g, const SparseLines& s, std::size_t line, const Columns& columns, std::size_t from) {
  const int k = s.jc[line];
  for (std::size_t j = from; j < columns.count; ++j) g[j] = lineSum(entries(s, line), s.pr + k, s.ir + k, columns.values + j * columns.ld);
}

/// Lines that are not full.
void scatteredSums(double* g, std::size_t ldG, const SparseLines& s, std::size_t first, std::size_t lines, const Columns& columns) {
  std::size_t j = 0;
  for (; j + kSideBySide <= columns.count; j += kSideBySide) {
    fourColumnSums(g + j, ldG, s, s.jc + first, lines, columns.values + j * columns.ld, columns.ld);
  }
  if (columns.count - j == kNearly) {
    return threeColumnSums(g + j, ldG, s, s.jc + first, lines, columns.values + j * columns.ld, columns.ld);
  }
  if (j == columns.count) return;
  for (std::size_t l = 0; l < lines; ++l) oneByOne(g + l * ldG, s, first + l, columns, j);
}

}  // namespace

void columnSums(double* g, std::size_t ldG, const SparseLines& s, std::size_t first, std::size_t lines, const Columns& columns) {
  if (columns.count < kNearly) {  // lineSum looks for itself whether a line is full
    for (std::size_t l = 0; l < lines; ++l) oneByOne(g + l * ldG, s, first + l, columns, 0);
    return;
  }
  std::size_t done = 0;
  for (std::size_t l = 0; l < lines; ++l) {
    if (!isFull(entries(s, first + l), s.ir + s.jc[first + l])) continue;
    // Its values lie side by side in each column: that is quicker than four columns together.
    scatteredSums(g + done * ldG, ldG, s, first + done, l - done, columns);
    oneByOne(g + l * ldG, s, first + l, columns, 0);
    done = l + 1;
  }
  scatteredSums(g + done * ldG, ldG, s, first + done, lines - done, columns);
}

}  // namespace quarn
