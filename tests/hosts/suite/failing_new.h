// C++ allocations of the module that fail.
#pragma once

/// Lets the k-th operator new of a module's own code throw std::bad_alloc from now on. 0: none.
void failNew(long k);
/// How many there were since the last failNew.
long newCalls();
