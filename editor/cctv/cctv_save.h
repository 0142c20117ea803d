// Writes the triggers of one save of the CCTV panel: each is one row, its action included.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "catalog/event_catalogue.h"
#include "common/module1.h"
#include "controls/simple_controls.h"
#include "editor/panel/arguments.h"
#include "editor/panel/save_steps.h"

namespace pelorin {

// Positions in CCTV_Update_TA and CCTV_Insert_TA that are not the panel's alone. The event goes in
// as a number and as a text.
namespace cctv_argument {
inline constexpr int eventId = 5;
inline constexpr int address = 6;
inline constexpr int action = 7;
inline constexpr int eventText = 8;
inline constexpr int locationText = 9;
}  // namespace cctv_argument

class CctvSave {
 public:
  // `values` are the panel's as they were when the save began; the check box is asked event by
  // event whether an alarm is acknowledged on its return to normal.
  CctvSave(Module1& module, EventCatalogue& catalogue, SaveSteps& steps, Arguments values,
           const CheckBox& returnToNormal);

  // False after telling the operator what is missing.
  bool update();
  void insert();

 private:
  bool insertAt(const std::string& locationText, const std::vector<CheckedEvent>& events);
  void insertRow(const std::string& locationText, std::int32_t eventId, std::int64_t action);
  void acknowledgeOnReturn(const std::string& locationText, std::int32_t eventId);
  // The values and what they are tied to.
  std::string argumentsFor(const std::string& locationText, std::int32_t eventId,
                           std::int64_t action) const;
  std::int64_t action() const;

  Module1& module_;
  EventCatalogue& catalogue_;
  SaveSteps& steps_;
  Arguments values_;
  const CheckBox& returnToNormal_;
};

}  // namespace pelorin
