// The one place where errors end: each named procedure of the component is wrapped in one guard,
// which reports the error under the procedure's name and lets the procedure return its default.
//
//   void frmTASummary::LoadSummaryData() {
//     guarded(module_, "frmTASummary.LoadSummaryData", [&] { ... });
//   }
#pragma once

#include <string_view>
#include <utility>

#include "base/current_error.h"
#include "common/already_reported.h"
#include "common/module1.h"

namespace pelorin {

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

}  // namespace pelorin
