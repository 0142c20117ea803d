#include "editor/panel/action_panel.h"

#include <algorithm>

namespace pelorin {

bool ActionPanel::readTrigger(std::int32_t triggerId, TriggerData& data) {
  return GetTriggerData(module_, triggerId, data);
}

ActionPanel* panelOf(const ActionPanels& panels, std::int32_t deviceClass) noexcept {
  const auto found = std::find_if(panels.begin(), panels.end(), [&](const auto& panel) {
    return panel->deviceClass() == deviceClass;
  });
  return found == panels.end() ? nullptr : found->get();
}

}  // namespace pelorin
