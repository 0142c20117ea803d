// The one place where errors end: each named procedure of the component is wrapped in one guard,
// which reports the error under the procedure's name and lets the procedure return its default.
//
//   void frmTASummary::LoadSummaryData() {
//     guarded(module_, "frmTASummary.LoadSummaryData", [&] { ... });
//   }
#pragma once

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "common/module1.h"

namespace pelorin {

// The error being handled, whatever its C++ type.
RunTimeError currentError() noexcept;

// Thrown by an outer procedure after an inner one failed and has reported it already: ends the
// whole operation without a second report.
struct AlreadyReported : std::exception {
  const char* what() const noexcept override { return "already reported"; }
};

// True when `work` ended without an error.
template <class Work>
bool guarded(Module1& module, std::string_view procedure, Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
    return true;
  } catch (const AlreadyReported&) {
    return false;
  } catch (...) {
    module.ReportError(procedure, currentError());
    return false;
  }
}

// The result of `work`, or `fallback` after an error.
template <class Result, class Work>
Result guardedOr(Module1& module, std::string_view procedure, Result fallback,
                 Work&& work) noexcept {
  guarded(module, procedure, [&] { fallback = std::forward<Work>(work)(); });
  return fallback;
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
