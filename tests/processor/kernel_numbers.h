// What the vectorised kernels compute on given data, for one processor version.
#pragma once

#include <vector>

/// Everything that every kernel with processor versions computes for n modes or lines, one number behind the other.
std::vector<double> kernelNumbersDispatched(int n);
std::vector<double> kernelNumbersV1(int n);
std::vector<double> kernelNumbersV3(int n);
std::vector<double> kernelNumbersV4(int n);
