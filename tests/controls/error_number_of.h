// The number of the error that a statement ends with; 0 when it does not fail.
#pragma once

#include "base/run_time_error.h"

namespace pelorin::test {

template <class Body>
std::int32_t errorNumberOf(Body body) {
  try {
    body();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace pelorin::test
