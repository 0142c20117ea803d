// Where a trigger fires: one location text in edit mode, a list of them in add mode.
#pragma once

#include <string>
#include <vector>

#include "common/form_links.h"
#include "common/module1.h"
#include "controls/list_view.h"
#include "controls/simple_controls.h"

namespace pelorin {

class TriggerLocations {
  Parent page_;

 public:
  // The controls stand on `page`. The picker writes into `target`.
  TriggerLocations(Module1& module, Parent page, LocationTarget& target, ShowPicker showPicker);

  Label lblLocation{page_, "lblLocation", {180, 540, 1500, 255}, "Location:"};
  TextBox txtLocation{page_, "txtLocation", {180, 825, 8970, 330}};
  ListView lvwLocation{page_, "lvwLocation", {180, 825, 8010, 1410}, {{"Location", 7600}}, false};
  Button cmdAddLocation{page_, "cmdAddLocation", {8370, 825, 1410, 390}, "&Add..."};
  Button cmdDeleteLocation{page_, "cmdDeleteLocation", {8370, 1305, 1410, 390}, "&Delete"};
  Button cmdSingleLocation{page_, "cmdSingleLocation", {9270, 795, 510, 390}, "..."};

  // One location in txtLocation, or several in lvwLocation.
  void showSingle(bool single);
  bool single() const noexcept { return txtLocation.visible(); }

  void cmdSingleLocation_Click();
  void cmdAddLocation_Click();
  void cmdDeleteLocation_Click();

  // False after telling the operator that a location is missing.
  bool ValidateTriggerLocation();

  // The texts of lvwLocation, in list order.
  std::vector<std::string> listed() const;

 private:
  Module1& module_;
  LocationTarget& target_;
  ShowPicker showPicker_;
};

}  // namespace pelorin
