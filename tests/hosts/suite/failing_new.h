// C++ allocations of the module that fail.
#pragma once

#include <exception>

/// Lets the k-th operator new of a module's own code throw from now on: std::bad_alloc, or what is given. 0: none.
void failNew(long k, std::exception_ptr thrown = nullptr);
/// How many there were since the last failNew.
long newCalls();
