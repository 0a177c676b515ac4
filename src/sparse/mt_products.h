// Transposed sum and product of a small matrix with a vector, for every form of the matrix.
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

/// Product into y.
///   dense:              y = A*u, overwrites y (rows values); a single row is summed as a stored line is (line_sums.h)
///   sparse, trans = 1:  y[i] += line i . u, accumulates (the caller zeroes y)
///   sparse, trans != 1: raises "Prod_Mt_u implemented for transposed sparse matrices"
void Prod_Mt_ub(const int* dims, const int* ir, const int* jc, const double* pr, const double* u, double* y);

/// The same on a matrix argument in any form that sparseView takes, with u and y checked against its size. A matrix without values adds
/// nothing; where its form is an error of the functions above, that error is raised nevertheless.
void Add_Mt_u(const mxArray* M, host::Doubles u, host::Doubles y, const char* name);
void Prod_Mt_u(const mxArray* M, host::Doubles u, host::Doubles y, const char* name);

/// Raise the errors of the forms that Add_Mt_ub and Prod_Mt_ub do not take.
void checkAddForm(const SparseView& v);
void checkProdForm(const SparseView& v);

/// Refuses a view with which these would leave u (uLen values), y (yLen values) or the matrix's own arrays. name: of the
/// matrix, for the texts. checkProd raises the error of its form as well; checkAdd leaves that to its callers.
void checkAdd(const SparseView& v, std::size_t uLen, std::size_t yLen, const char* name);
void checkProd(const SparseView& v, std::size_t uLen, std::size_t yLen, const char* name);

}  // namespace quarn
