// Linear table interpolation with a warm-started segment search.
#pragma once

namespace quarn {

/// Interpolates n queries x in a table, without clamping: the end segments extrapolate.
///
/// X    table, nx rows and 1 + ny columns, column-major: abscissae in ascending order (equal neighbours are a jump, a query on
///      it gets the mean), then the value columns. Without knots (nx = 0) its first two places still give the fraction; null stands for
///      two zeros there
/// rec  in-out, three doubles that survive between calls: segment of the last query (start of the next search), first query of
///      the call, interpolation fraction of the last query
/// out  n rows and ny columns, column-major; with ny = 0 the 1-based segment number of each query
/// mode 0: only the record is updated
/// X2   optional second table over the same abscissae (null: none), its values go to out2
/// ascending: the caller knows that no abscissa is below the one before it, or NaN. Far jumps then find their segment by halves, with the
///      same results and record; otherwise the table is walked, whatever it holds.
/// out may be x itself (the values then overwrite the queries as they are found).
void vorel_LinInterp(const double* X, const double* x, double* rec, double* out, int nx, int ny, int n, int mode, const double* X2,
                     double* out2, bool ascending = false);

/// The same with mode 1, one value column, no second table and at least two knots, where neither out (n values) nor rec shares memory with
/// anything: what a segment needs is kept from query to query.
void interpolateApart(const double* X, const double* x, double* rec, double* out, int nx, int n, bool ascending);

/// The same for one query and knots that ascend, where rec shares no memory with X: the value, which the caller stores.
double interpolateOne(const double* X, double xq, double* rec, int nx);

/// Where the walk from segment i ends, for nx knots that ascend: from below at the first knot that is not below the query, from above at
/// the last that is not above it. Beyond the last knot, and for a start there in the last segment as well, it is nx - 1. For knots that do
/// not ascend it is one of 0 to nx - 1.
int searchAscending(const double* X, int nx, int i, double xq);

}  // namespace quarn
