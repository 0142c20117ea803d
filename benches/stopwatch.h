// How long a piece of work takes.
#pragma once

#include <chrono>
#include <utility>

namespace pelorin::test {

template <class Work>
double secondsOf(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  std::forward<Work>(work)();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace pelorin::test
