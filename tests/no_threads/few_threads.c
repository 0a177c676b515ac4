/* Preloaded into a process, refuses it threads from when its environment holds REFUSE_THREADS on, as a limit of the system would. A host starts some
   of its own before, as many as its version likes, and cannot do without them. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*), void* argument) {
  int (*create)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*) = dlsym(RTLD_NEXT, "pthread_create");
  if (getenv("REFUSE_THREADS")) {
    fputs("a thread was refused\n", stderr);
    return EAGAIN;
  }
  return create(thread, attributes, start, argument);
}
