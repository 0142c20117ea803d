// Where a trigger fires: one location text in edit mode, a list of them in add mode.
#pragma once

#include <string>
#include <vector>

#include "common/form_links.h"
#include "common/module1.h"
#include "controls/list_view.h"
#include "controls/simple_controls.h"
#include "controls/tab_control.h"

namespace pelorin {

class TriggerLocations {
 public:
  // The controls stand on page `page` of `tabs`. The picker writes into `target`.
  TriggerLocations(Module1& module, TabControl& tabs, int page, LocationTarget& target,
                   ShowPicker showPicker);

  Label lblLocation;
  TextBox txtLocation;
  Button cmdSingleLocation;
  ListView lvwLocation;
  Button cmdAddLocation;
  Button cmdDeleteLocation;

  std::vector<Control*> controls();

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
