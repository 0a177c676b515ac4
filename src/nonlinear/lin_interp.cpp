#include "nonlinear/lin_interp.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <limits>

#include "numbers/convert.h"

namespace quarn {

namespace {

/// Walks from segment i, one segment at a time, to the one that holds xq. Returns nx - 1 for a query that is not below the last
/// segment when the walk starts or arrives beyond it.
int walk(const double* X, int nx, int i, double xq) {
  if (i < 0) i = 0;
  for (;;) {
    if (i < nx - 1) {
      if (xq > X[i + 1]) {
        ++i;
      } else if (i >= 1 && X[i] > xq) {
        --i;
      } else {
        return i;
      }
    } else {
      if (nx - 1 <= 0 || !(X[nx - 2] > xq)) return nx - 1;
      i = nx - 2;
      if (xq > X[nx - 1]) return i;  // knots that descend: going on would walk for ever
    }
  }
}

/// Segments that are walked before the rest is searched by halves.
constexpr int kNear = 8;

/// Segment that a record asks to start from; what is beyond all integers is beyond the last knot.
int start(double record) { return record >= 2147483648.0 ? INT_MAX : toInt(record); }

double fraction(const double* X, int s, double xq) {
  const double d = X[s + 1] - X[s];
  return d == 0.0 ? 0.5 : (xq - X[s]) / d;
}

/// A query on coinciding knots takes the segment of length zero between them.
int resolveJump(const double* X, int nx, int s, double xq) {
  if (s < nx - 2 && X[s + 1] == xq && X[s + 2] == X[s + 1]) return s + 1;
  if (s > 0 && X[s] == xq && X[s - 1] == X[s]) return s - 1;
  return s;
}

/// f between column[0] and column[1] of each of ny value columns, n values apart.
void values(const double* column, std::ptrdiff_t nx, int ny, double f, double* out, std::ptrdiff_t n) {
  for (int k = 0; k < ny; ++k) out[k * n] = f * column[k * nx + 1] + (1.0 - f) * column[k * nx];
}

/// A segment and the queries strictly inside of it: a search that starts there ends there, and no knot is met.
struct Segment {
  /// The segment of one value column that a search has found, as the record has it.
  Segment(const double* X, int nx, int found) {
    const int s = std::max(std::min(found, nx - 2), 0);
    begin = X[s];
    length = X[s + 1] - X[s];
    y0 = X[nx + s];
    y1 = X[nx + s + 1];
    if (!(length > 0.0 || length < 0.0)) return;  // the fraction is another one
    if (found > 0) low = X[s];
    if (found == 0) low = -infinity;
    high = found < nx - 1 ? X[s + 1] : infinity;
  }
  bool inside(double xq) const { return low < xq && xq < high; }
  double fraction(double xq) const { return (xq - begin) / length; }
  double value(double f) const { return f * y1 + (1.0 - f) * y0; }

  static constexpr double infinity = std::numeric_limits<double>::infinity();
  double low = infinity;
  double high = -infinity;
  double begin;
  double length;
  double y0;
  double y1;
};

}  // namespace

int searchAscending(const double* X, int nx, int i, double xq) {
  i = std::max(i, 0);
  if (i >= nx - 1) {
    if (nx < 2 || !(X[nx - 2] > xq)) return nx - 1;
    i = nx - 2;
  }
  if (xq > X[i + 1]) {
    for (int k = 0; k < kNear; ++k) {
      ++i;
      if (i == nx - 1 || !(xq > X[i + 1])) return i;
    }
    return static_cast<int>(std::lower_bound(X + i + 2, X + nx, xq) - X) - 1;
  }
  for (int k = 0; k < kNear; ++k) {
    if (i < 1 || !(X[i] > xq)) return i;
    --i;
  }
  return static_cast<int>(std::upper_bound(X + 1, X + i + 1, xq) - X) - 1;
}

void interpolateApart(const double* X, const double* x, double* rec, double* out, int nx, int n, bool ascending) {
  if (n <= 0) return;
  int found = start(rec[0]);
  double f = 0.0;
  for (int j = 0; j < n;) {
    found = ascending ? searchAscending(X, nx, found, x[j]) : walk(X, nx, found, x[j]);
    const int s = resolveJump(X, nx, std::min(found, nx - 2), x[j]);
    f = fraction(X, s, x[j]);
    values(X + nx + s, nx, 1, f, out + j, n);
    const Segment here(X, nx, found);
    for (++j; j < n && here.inside(x[j]); ++j) {
      f = here.fraction(x[j]);
      out[j] = here.value(f);
    }
  }
  rec[0] = static_cast<double>(found);
  rec[1] = x[0];
  rec[2] = f;
}

double interpolateOne(const double* X, double xq, double* rec, int nx) {
  const int reached = searchAscending(X, nx, start(rec[0]), xq);
  const int s = resolveJump(X, nx, std::min(reached, nx - 2), xq);
  const double f = fraction(X, s, xq);
  rec[0] = reached;
  rec[1] = xq;
  rec[2] = f;
  const double* y = X + nx + s;
  return f * y[1] + (1.0 - f) * y[0];
}

void vorel_LinInterp(const double* X, const double* x, double* rec, double* out, int nx, int ny, int n, int mode, const double* X2,
                     double* out2, bool ascending) {
  for (int j = 0; j < n; ++j) {
    const double xq = x[j];
    const int found = ascending ? searchAscending(X, nx, start(rec[0]), xq) : walk(X, nx, start(rec[0]), xq);
    rec[0] = found;
    rec[1] = x[0];
    const int segment = std::max(std::min(found, nx - 2), 0);
    if (ny == 0 && mode != 0) out[j] = segment + 1;
    if (nx <= 0) {  // no knots, no value
      rec[2] = X ? fraction(X, 0, xq) : 0.5;
    } else if (mode == 0) {
      rec[2] = nx == 1 ? 1.0 : fraction(X, segment, xq);
    } else if (nx == 1) {
      rec[2] = 0.0;
      for (std::ptrdiff_t k = 0; k < ny; ++k) {
        out[j + k * n] = X[k + 1];
        if (X2 && out2) out2[j + k * n] = X2[k + 1];
      }
    } else {
      const int s = resolveJump(X, nx, segment, xq);
      const double f = fraction(X, s, xq);
      rec[2] = f;
      values(X + nx + s, nx, ny, f, out + j, n);
      if (X2 && out2) values(X2 + nx + s, nx, ny, f, out2 + j, n);
    }
  }
}

}  // namespace quarn
