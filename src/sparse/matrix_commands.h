// The matrix commands, with the entry's own signature: prhs[0] is the command word, operands follow.
#pragma once

#include "host/mex_api.h"

namespace quarn {

// tbbp_command.cpp

/// quarn ('tbbp', A, x, y): y = y + A*x in place, line by line of the stored matrix, over as many lines as x has rows.
void commandTbbp(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

// projection_commands.cpp

/// P = quarn ('c<-a''*b', a, b) or quarn ('c<-a''*b', a, b, c): P = a' * b, in place in c when exactly four arguments are given.
void commandProjectLeft(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// P = quarn ('abc', TA, k, TB, int32 ([1 0 0])): P = TA.' * k * TB for real or complex bases.
void commandTripleProduct(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

// setsparse_command.cpp

/// quarn ('setsparse', M, ir, jc, pr): overwrites indices and values of M in place.
void commandSetSparse(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

// directzr_command.cpp

/// X = quarn ('directzr', A, Kc, B, F): prepares a complex direct solve, returns zeros.
void commandDirectZr(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

// retired_commands.cpp: these check their arguments and stop with a message; what is left of them are outputs without values.

/// quarn ('dtkt', base, k)
void commandDtkt(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// quarn ('ta''*k*tb', ta, k, tb)
void commandTaKTb(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);
/// quarn ('igsm', phi, k)
void commandIgsm(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

}  // namespace quarn
