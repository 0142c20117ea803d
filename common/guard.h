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

#include "common/already_reported.h"
#include "common/module1.h"

namespace pelorin {

// The error being handled, whatever its C++ type.
RunTimeError currentError() noexcept;

// True when `work` ended without an error.
template <class Work>
bool guarded(Module1& module, std::string_view procedure, Work&& work) noexcept {
  const Act act(module.screen().acts());
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
