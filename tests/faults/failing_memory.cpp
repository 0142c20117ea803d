#include "tests/faults/failing_memory.h"

#include <cstdlib>
#include <new>

#include "tests/fakes/faults.h"

namespace pelorin::test {

namespace {

thread_local Faults allocations;
thread_local bool allocationFailed = false;

}  // namespace

FailingMemory::FailingMemory(int number) noexcept {
  allocationFailed = false;
  allocations.fail(number);
}

FailingMemory::~FailingMemory() {
  allocationFailed = allocations.happened();
  allocations.fail(0);
}

bool FailingMemory::failed() noexcept {
  return allocationFailed;
}

}  // namespace pelorin::test

// The array and sized forms of the language end in these.
void* operator new(std::size_t size) {
  void* memory =
      pelorin::test::allocations.nextFails() ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return pelorin::test::allocations.nextFails() ? nullptr : std::malloc(size == 0 ? 1 : size);
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
