// The interface for compiled functions that MATLAB documents, as far as quarn and its tests use it.
#pragma once

#include "matrix.h"

#define mexCallMATLAB mexCallMATLABWithObject

#pragma GCC visibility push(default)
extern "C" {

/// The entry of a module.
void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]);

int mexCallMATLAB(int nlhs, mxArray* plhs[], int nrhs, mxArray* prhs[], const char* function);
[[noreturn]] void mexErrMsgTxt(const char* text);
[[noreturn]] [[gnu::format(printf, 2, 3)]] void mexErrMsgIdAndTxt(const char* identifier, const char* format, ...);
[[gnu::format(printf, 1, 2)]] int mexPrintf(const char* format, ...);
int mexAtExit(void (*function)(void));
void mexMakeArrayPersistent(mxArray* a);
void mexMakeMemoryPersistent(void* ptr);
}
#pragma GCC visibility pop
