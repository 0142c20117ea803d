// The typical request, from the summary's Add to the editor's OK, done with mouse and keyboard in
// the component's real windows.
#pragma once

#include <vector>

#include "driver/report_list.h"
#include "host/play/stage.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

// What the summary showed.
struct SummaryRows {
  std::vector<driver::Row> before;
  std::vector<driver::Row> after;
};

// DriverError when a window does not do what is expected of it.
SummaryRows playTypicalRequest(Stage& stage);

}  // namespace pelorin::host
