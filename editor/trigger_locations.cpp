#include "editor/trigger_locations.h"

#include <utility>

#include "common/guard.h"

namespace pelorin {

TriggerLocations::TriggerLocations(Module1& module, TabControl& tabs, int page,
                                   LocationTarget& target, ShowPicker showPicker)
    : lblLocation("lblLocation", {180, 540, 1500, 255}, "Location:"),
      txtLocation("txtLocation", {180, 825, 8970, 330}),
      cmdSingleLocation("cmdSingleLocation", {9270, 795, 510, 390}, "..."),
      lvwLocation("lvwLocation", {180, 825, 8010, 1410}, {{"Location", 7600}}, false),
      cmdAddLocation("cmdAddLocation", {8370, 825, 1410, 390}, "&Add..."),
      cmdDeleteLocation("cmdDeleteLocation", {8370, 1305, 1410, 390}, "&Delete"),
      module_(module),
      target_(target),
      showPicker_(std::move(showPicker)) {
  for (Control* control : controls()) control->setContainer(tabs, page);
  showSingle(false);
  cmdSingleLocation.onClick = [this] { cmdSingleLocation_Click(); };
  cmdAddLocation.onClick = [this] { cmdAddLocation_Click(); };
  cmdDeleteLocation.onClick = [this] { cmdDeleteLocation_Click(); };
}

std::vector<Control*> TriggerLocations::controls() {
  return {&lblLocation,    &txtLocation,       &lvwLocation,
          &cmdAddLocation, &cmdDeleteLocation, &cmdSingleLocation};
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
