// Waits for what is expected of a window, with a limit.
#pragma once

#include <chrono>
#include <stdexcept>
#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

// What was waited for did not come.
struct DriverError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline constexpr std::chrono::seconds patience{30};

// The first result of `look` that counts as true; DriverError naming `expected` when there is none
// in time.
template <class Look>
auto waitFor(const std::string& expected, Look&& look, std::chrono::seconds limit = patience) {
  constexpr DWORD pauseMilliseconds = 5;
  const auto end = std::chrono::steady_clock::now() + limit;
  for (;;) {
    if (auto found = look()) return found;
    if (std::chrono::steady_clock::now() > end) throw DriverError("never came: " + expected);
    Sleep(pauseMilliseconds);
  }
}

}  // namespace pelorin::driver
