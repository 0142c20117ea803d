// Lets one allocation fail. A program that links this takes its memory through it.
#pragma once

namespace pelorin::test {

// While it lives, the n-th allocation of this thread (from 1) fails; those after it succeed.
class FailingMemory {
 public:
  explicit FailingMemory(int number) noexcept;
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
  ~FailingMemory();

  // Whether there were that many.
  static bool failed() noexcept;
};

}  // namespace pelorin::test
