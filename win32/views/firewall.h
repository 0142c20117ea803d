// Nothing may be thrown into Windows: it could not be unwound there and would end the host.
#pragma once

#include <exception>

#include "win32/views/windows_api.h"

namespace pelorin {

// Runs `body` and gives its result, or `fallback` when it throws. Events of forms report their own
// errors, so what arrives here is a fault of ours and goes to the debugger.
template <class Result, class Body>
Result shielded(Result fallback, Body body) noexcept {
  try {
    return body();
  } catch (const std::exception& error) {
    OutputDebugStringA(error.what());
  } catch (...) {
    OutputDebugStringA("unknown exception");
  }
  return fallback;
}

}  // namespace pelorin
