/* Preloaded into a process, lets it have one thread besides its first, as a limit of the system would: Octave starts that one. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <pthread.h>
#include <stdio.h>

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*), void* argument) {
  static int created = 0;
  int (*create)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*) = dlsym(RTLD_NEXT, "pthread_create");
  if (++created > 1) {
    fputs("a thread was refused\n", stderr);
    return EAGAIN;
  }
  return create(thread, attributes, start, argument);
}
