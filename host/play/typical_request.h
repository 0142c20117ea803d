// The typical request, from the summary's Add to the editor's OK, done with mouse and keyboard in
// the component's real windows.
#pragma once

#include <vector>

#include "host/driver/report_list.h"
#include "host/play/stage.h"
#include "host/windows_api.h"

namespace pelorin::host {

// What the summary showed.
struct SummaryRows {
  std::vector<Row> before;
  std::vector<Row> after;
};

// DriverError when a window does not do what is expected of it.
SummaryRows playTypicalRequest(Stage& stage);

// What the request is about, for those who check the outcome.
namespace typical {
inline constexpr const char* addresses[] = {"001.01.001.D02", "001.01.001.D03"};
inline constexpr int events[] = {1, 2};
inline constexpr int switcher = 1;
inline constexpr int camera = 3;
inline constexpr int monitor = 2;
}  // namespace typical

}  // namespace pelorin::host
