#include "editor/trigger_locations.h"

#include <utility>

#include "common/guard.h"

namespace pelorin {

TriggerLocations::TriggerLocations(Module1& module, Parent page, LocationTarget& target,
                                   ShowPicker showPicker)
    : page_(page), module_(module), target_(target), showPicker_(std::move(showPicker)) {
  showSingle(false);
  cmdSingleLocation.onClick = [this] { cmdSingleLocation_Click(); };
  cmdAddLocation.onClick = [this] { cmdAddLocation_Click(); };
  cmdDeleteLocation.onClick = [this] { cmdDeleteLocation_Click(); };
}

void TriggerLocations::showSingle(bool single) {
  txtLocation.setVisible(single);
  cmdSingleLocation.setVisible(single);
  lvwLocation.setVisible(!single);
  cmdAddLocation.setVisible(!single);
  cmdDeleteLocation.setVisible(!single);
}

void TriggerLocations::cmdSingleLocation_Click() {
  guarded(module_, "frmTriggerAction.cmdSingleLocation_Click",
          [this] { showPicker_(target_, "singlelocation"); });
}

void TriggerLocations::cmdAddLocation_Click() {
  guarded(module_, "frmTriggerAction.cmdAddLocation_Click",
          [this] { showPicker_(target_, "multilocation"); });
}

void TriggerLocations::cmdDeleteLocation_Click() {
  guarded(module_, "frmTriggerAction.cmdDeleteLocation_Click", [this] {
    if (lvwLocation.selectedIndex() > 0) lvwLocation.remove(lvwLocation.selectedIndex());
  });
}

bool TriggerLocations::ValidateTriggerLocation() {
  if (single()) {
    if (!txtLocation.text().empty()) return true;
    module_.inform("Required field missing. Must specify trigger location.");
    return false;
  }
  if (lvwLocation.count() > 0) return true;
  module_.inform("Required field missing. Must specify one or more trigger locations.");
  return false;
}

std::vector<std::string> TriggerLocations::listed() const {
  std::vector<std::string> texts;
  for (int index = 1; index <= lvwLocation.count(); ++index) {
    texts.push_back(lvwLocation.item(index).text);
  }
  return texts;
}

}  // namespace pelorin
