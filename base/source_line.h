// Gives an error of the called side the source line of the caller.
#pragma once

#include <source_location>
#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

using SourceLine = std::source_location;

template <class Work>
auto withLine(const SourceLine& where, Work&& work) {
  try {
    return std::forward<Work>(work)();
  } catch (RunTimeError& error) {
    error.setLineIfUnknown(where.line());
    throw;
  }
}

}  // namespace pelorin
