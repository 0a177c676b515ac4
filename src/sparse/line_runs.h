// Full lines of one matrix that are summed together, recognised once for many products.
#pragma once

namespace quarn {

/// Lines of a small matrix, as a view holds them.
struct StoredLines {
  int lines;
  const int* ir;
  const int* jc;
  const double* pr;
};

/// runs[i] (out, a value for each line): how many full lines with the same indices begin with line i; 0 where line i is not full.
/// Returns whether there is a full line.
bool findRuns(const StoredLines& m, int* runs);

/// y[i] = 0 + line i . x, assigned, with the runs of the lines; y may overlap neither x nor the matrix.
void sumLines(const StoredLines& m, const int* runs, const double* x, double* y);
/// The same for u and v, in one pass over the runs. yu and yv may not overlap either.
void sumLinesOfTwo(const StoredLines& m, const int* runs, const double* u, double* yu, const double* v, double* yv);

/// Whether every line is full with the same indices or empty, and one is full. first, length (out): the places of the full ones.
bool isBlock(const StoredLines& m, int* first, int* length);

}  // namespace quarn
