// Any C++ error as a run-time error, and work whose error the caller looks at itself.
#pragma once

#include <exception>
#include <optional>
#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

// The error being handled, whatever its C++ type.
RunTimeError currentError() noexcept;

// What ended `work`, null when nothing did: for a caller that has to put something in order before
// it lets the error go on.
template <class Work>
std::exception_ptr exceptionOf(Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
    return nullptr;
  } catch (...) {
    return std::current_exception();
  }
}

// The error that ended `work`, if one did: for a caller that goes on by the error's number.
template <class Work>
std::optional<RunTimeError> errorOf(Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
    return std::nullopt;
  } catch (...) {
    return currentError();
  }
}

}  // namespace pelorin
