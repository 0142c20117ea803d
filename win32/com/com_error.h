// What a failed call of an object becomes: the number and the text that a scripting host would
// show.
#pragma once

#include <ole2.h>

#include "base/run_time_error.h"

namespace pelorin {

// The text is the standard one for the number, else the system's, else "Automation error".
RunTimeError comError(HRESULT result);

// The other way round: what a method answers that ended with the error.
HRESULT resultOf(const RunTimeError& error);

inline void check(HRESULT result) {
  if (FAILED(result)) throw comError(result);
}

// What an object says about an error of its own (DISP_E_EXCEPTION).
class ExceptionInfo {
 public:
  ExceptionInfo() = default;
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;
  ~ExceptionInfo();

  EXCEPINFO* put() noexcept { return &info_; }
  // Asks for what the object put off filling in.
  RunTimeError error();

 private:
  EXCEPINFO info_{};
};

}  // namespace pelorin
