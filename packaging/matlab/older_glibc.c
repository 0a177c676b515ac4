/* libstdc++ asks this variable of glibc 2.32 and later whether it may leave out atomic operations. Zero says no: right everywhere, and the
 * module then loads beside an older glibc as well. */
char __libc_single_threaded;
