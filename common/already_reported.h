// Ends an operation without a report.
#pragma once

#include <exception>

namespace pelorin {

// Thrown by an outer procedure after an inner one failed and has reported it already: ends the
// whole operation without a second report.
struct AlreadyReported : std::exception {
  const char* what() const noexcept override { return "already reported"; }
};

}  // namespace pelorin
