// Transposed sum and product of a small matrix with a vector.
//
// In terms of the operator M that a view stands for: Add accumulates M'*u, Prod forms M*u. The asymmetry is intended: Add
// takes sparse views in both orientations, Prod only those flagged trans = 1, whose stored lines are the rows of M.
#pragma once

#include "sparse/sparse_view.h"

namespace quarn {

/// Accumulates into y (in-out).
///   sparse, trans != 1: y[i] += line i . u                       for i < rows
///   sparse, trans = 1:  y[j] += sum of u[i] * line i, formed in a work vector of cols values first
///   dense,  trans = 1:  y[j] += pr[j] * u[0]                     for j < cols, a single row, whatever rows says
///   dense,  trans != 1: raises "Add_Mt_u implemented for sparse matrices" if rows > 0
/// dims = {rows, cols, trans}. The work vector is host memory that is freed before returning.
void Add_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y);

/// The same with a work vector of the caller (cols values, contents lost), for callers that run many times.
void Add_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work);

/// Add_Mt_ub for a sparse view with trans = 1 that touches few of its columns, into a y without negative zeros (-0 + 0 would make
/// them 0): there the sums of the other columns, which are 0, change nothing. work: a value for each column, all zero before and after.
void addScatteredTouched(int rows, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work);

// Matrices whose lines have a single entry or none, each for one degree of freedom.

/// Whether no line has more than one entry.
bool singleEntries(int lines, const int* jc);
/// Whether no two of n indices are the same. marks: a value for each column, all zero before and after.
bool distinct(int n, const int* ir, double* marks);

/// Prod_Mt_ub for such lines with trans = 1, assigned: y[i] = line i . x. y must overlap neither x nor pr.
inline void gatherSingles(int lines, const int* ir, const int* jc, const double* pr, const double* x, double* y) {
  for (int i = 0; i < lines; ++i) {
    const int k = jc[i];
    y[i] = jc[i + 1] > k ? 0.0 + pr[k] * x[ir[k]] : 0.0;
  }
}

/// addScatteredTouched for such lines with distinct indices. As in a sparse axpy, a force of zero adds nothing, whatever it is multiplied
/// with.
inline void scatterSingles(int lines, const int* ir, const int* jc, const double* pr, const double* u, double* y, double* work) {
  for (int i = 0; i < lines; ++i) {
    const int k = jc[i];
    if (jc[i + 1] > k) work[ir[k]] = u[i] != 0.0 ? u[i] * pr[k] : 0.0;
  }
  for (int k = jc[0]; k < jc[lines]; ++k) {
    y[ir[k]] += work[ir[k]];
    work[ir[k]] = 0.0;
  }
}

/// Product into y.
///   dense:              y = A*u, overwrites y (rows values)
///   sparse, trans = 1:  y[i] += line i . u, accumulates (the caller zeroes y)
///   sparse, trans != 1: raises "Prod_Mt_u implemented for transposed sparse matrices"
void Prod_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y);

/// The same on a matrix argument in any form that sparseView takes, with u and y checked against its size. A matrix without values adds
/// nothing; where its form is an error of the kernel's, that error is raised nevertheless.
void Add_Mt_u(const mxArray* M, host::Doubles u, host::Doubles y, const char* name);
void Prod_Mt_u(const mxArray* M, host::Doubles u, host::Doubles y, const char* name);

/// Raise the errors of the forms that the kernels above do not take.
void checkAddForm(const SparseView& v);
void checkProdForm(const SparseView& v);

/// Refuses a view with which the kernel above would leave u (uLen values), y (yLen values) or the matrix's own arrays. name: of the
/// matrix, for the texts. checkProd raises the error of its form as well; checkAdd leaves that to who is going to add.
void checkAdd(const SparseView& v, std::size_t uLen, std::size_t yLen, const char* name);
void checkProd(const SparseView& v, std::size_t uLen, std::size_t yLen, const char* name);

}  // namespace quarn
