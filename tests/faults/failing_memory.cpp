#include "tests/faults/failing_memory.h"

#include <cstdlib>
#include <new>

namespace pelorin::test {

namespace {

thread_local int allocationsLeft = 0;
thread_local bool allocationFailed = false;

bool allocationFailsNow() noexcept {
  if (allocationsLeft == 0 || --allocationsLeft > 0) return false;
  allocationFailed = true;
  return true;
}

}  // namespace

FailingMemory::FailingMemory(int number) noexcept {
  allocationFailed = false;
  allocationsLeft = number;
}

FailingMemory::~FailingMemory() {
  allocationsLeft = 0;
}

bool FailingMemory::failed() noexcept {
  return allocationFailed;
}

}  // namespace pelorin::test

// The array and sized forms of the language end in these.
void* operator new(std::size_t size) {
  void* memory = pelorin::test::allocationFailsNow() ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return pelorin::test::allocationFailsNow() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
