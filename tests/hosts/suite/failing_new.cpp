#include "failing_new.h"

#include <cstdlib>
#include <new>
#include <thread>
#include <utility>

#include "standin.h"

namespace {

long failing = 0;
long counted = 0;
std::exception_ptr instead;
const std::thread::id tester = std::this_thread::get_id();

void* allocate(std::size_t n) {
  if (failing > 0 && std::this_thread::get_id() == tester && standin::moduleAtWork() && ++counted == failing) {
    if (instead) std::rethrow_exception(instead);
    throw std::bad_alloc();
  }
  void* memory = std::malloc(n > 0 ? n : 1);
  if (!memory) throw std::bad_alloc();
  return memory;
}

}  // namespace

void failNew(long k, std::exception_ptr thrown) {
  failing = k;
  instead = std::move(thrown);
  counted = 0;
}

long newCalls() { return counted; }

void* operator new(std::size_t n) { return allocate(n); }
void* operator new[](std::size_t n) { return allocate(n); }
// Who asks without an exception: test programs, not the module.
void* operator new(std::size_t n, const std::nothrow_t& /*without*/) noexcept { return std::malloc(n > 0 ? n : 1); }
void* operator new[](std::size_t n, const std::nothrow_t& /*without*/) noexcept { return std::malloc(n > 0 ? n : 1); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t& /*without*/) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*without*/) noexcept { std::free(memory); }
