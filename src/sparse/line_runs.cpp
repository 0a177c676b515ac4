#include "sparse/line_runs.h"

#include "sparse/dense_lines.h"
#include "sparse/line_sums.h"

namespace quarn {

namespace {

int entries(const StoredLines& m, int i) { return m.jc[i + 1] - m.jc[i]; }

bool sameIndices(const StoredLines& m, int i, int j) { return entries(m, i) == entries(m, j) && m.ir[m.jc[i]] == m.ir[m.jc[j]]; }

double sumOf(const StoredLines& m, int i, const double* x) { return 0.0 + lineSum(entries(m, i), m.pr + m.jc[i], m.ir + m.jc[i], x); }

}  // namespace

bool findRuns(const StoredLines& m, int* runs) {
  bool any = false;
  for (int i = m.lines - 1; i >= 0; --i) {
    runs[i] = isFull(entries(m, i), m.ir + m.jc[i]) ? 1 : 0;
    if (runs[i] == 0) continue;
    any = true;
    if (i + 1 < m.lines && runs[i + 1] > 0 && sameIndices(m, i, i + 1)) runs[i] += runs[i + 1];
  }
  return any;
}

void sumLines(const StoredLines& m, const int* runs, const double* x, double* y) {
  for (int i = 0; i < m.lines;) {
    const int k = m.jc[i];
    if (runs[i] > 0) {
      denseSums(runs[i], entries(m, i), m.pr + k, x + m.ir[k], y + i);
      i += runs[i];
    } else {
      y[i] = sumOf(m, i, x);
      ++i;
    }
  }
}

void sumLinesOfTwo(const StoredLines& m, const int* runs, const double* u, double* yu, const double* v, double* yv) {
  for (int i = 0; i < m.lines;) {
    const int k = m.jc[i];
    if (runs[i] > 0) {
      denseSumsOfTwo(runs[i], entries(m, i), m.pr + k, u + m.ir[k], yu + i, v + m.ir[k], yv + i);
      i += runs[i];
    } else {
      yu[i] = sumOf(m, i, u);
      yv[i] = sumOf(m, i, v);
      ++i;
    }
  }
}

bool isBlock(const StoredLines& m, int* first, int* length) {
  int found = -1;
  for (int i = 0; i < m.lines; ++i) {
    if (entries(m, i) == 0) continue;
    if (!isFull(entries(m, i), m.ir + m.jc[i])) return false;
    if (found < 0) found = i;
    if (!sameIndices(m, found, i)) return false;
  }
  if (found < 0) return false;
  *first = m.ir[m.jc[found]];
  *length = entries(m, found);
  return true;
}

}  // namespace quarn
