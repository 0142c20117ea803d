// The kind of device a trigger acts on, and the panel that goes with it.
#pragma once

#include <cstdint>

#include "common/module1.h"
#include "controls/item_lists.h"
#include "controls/simple_controls.h"
#include "editor/panel/action_panel.h"

namespace pelorin {

class DeviceClasses {
  Parent page_;

 public:
  DeviceClasses(Module1& module, Parent page, const ActionPanels& panels);

  Label lblActionDeviceClass{page_, "lblActionDeviceClass", {180, 585, 1380, 255}, "Device Type:"};
  ComboBox cmbActionDeviceClass{page_, "cmbActionDeviceClass", {1620, 540, 4500, 330}};

  // The classes with a panel that are always there, then those that the database lists; selects the
  // first one without showing its panel. False when an error ended it.
  bool LoadDeviceClassCombo(ComboBox& combo);
  void cmbActionDeviceClass_Click();
  // Selects the class, when the combo has it, and shows its panel alone; none for another class.
  void DisplayDeviceAction(std::int32_t deviceClass);

  // The class of the selected row, 0 without one.
  std::int32_t selectedClass() const;

 private:
  void addClasses(ComboBox& combo);

  Module1& module_;
  const ActionPanels& panels_;
  bool m_bLoadingDeviceClasses = false;
};

}  // namespace pelorin
