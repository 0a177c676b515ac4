// The matrix commands, with the entry's own signature: prhs[0] is the command word, operands follow.
#pragma once

#include "host/mex_api.h"

namespace quarn {

/// P = quarn ('c<-a''*b', a, b) or quarn ('c<-a''*b', a, b, c): P = a' * b, in place in c when exactly four arguments are given.
void commandProjectLeft(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// P = quarn ('abc', TA, k, TB, int32 ([1 0 0])): P = TA.' * k * TB for real or complex bases.
void commandTripleProduct(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// quarn ('setsparse', M, ir, jc, pr): overwrites indices and values of M in place.
void commandSetSparse(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// X = quarn ('directzr', A, Kc, B, F): prepares a complex direct solve, returns zeros.
void commandDirectZr(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

// Retired: these check their arguments and stop with a message; what is left of them are outputs without values.
void commandDtkt(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
void commandTaKTb(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
void commandIgsm(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
