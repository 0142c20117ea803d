#include "editor/device_classes.h"

#include "base/flag_while.h"
#include "common/combo_helpers.h"
#include "common/guard.h"

namespace pelorin {

DeviceClasses::DeviceClasses(Module1& module, Parent page, const ActionPanels& panels)
    : page_(page), module_(module), panels_(panels) {
  cmbActionDeviceClass.onClick = [this] { cmbActionDeviceClass_Click(); };
}

bool DeviceClasses::LoadDeviceClassCombo(ComboBox& combo) {
  return guarded(module_, "frmTriggerAction.LoadDeviceClassCombo", [&] {
    const FlagWhile loading(m_bLoadingDeviceClasses);
    combo.clear();
    addClasses(combo);
    selectFirstRow(combo);
  });
}

void DeviceClasses::addClasses(ComboBox& combo) {
  for (const auto& panel : panels_) {
    if (panel->ownClassName() != nullptr) {
      combo.addItem(panel->ownClassName(), panel->deviceClass());
    }
  }
  RecordSet rows = module_.DBConnection()->open("select * from IntegratedDeviceclasses");
  while (rows.next()) {
    const std::int32_t id = rows.int32("IntegratedDeviceClassId");
    const ActionPanel* panel = panelOf(panels_, id);
    if (panel == nullptr || panel->ownClassName() != nullptr) continue;
    combo.addItem(rows.text("Classname"), id);
  }
}

void DeviceClasses::cmbActionDeviceClass_Click() {
  if (m_bLoadingDeviceClasses) return;
  guarded(module_, "frmTriggerAction.cmbActionDeviceClass_Click",
          [this] { DisplayDeviceAction(cmbActionDeviceClass.selectedData()); });
}

void DeviceClasses::DisplayDeviceAction(std::int32_t deviceClass) {
  guarded(module_, "frmTriggerAction.DisplayDeviceAction", [&] {
    for (const auto& panel : panels_) panel->frame().setVisible(false);
    SelectComboItemByData(cmbActionDeviceClass, deviceClass);
    ActionPanel* panel = panelOf(panels_, deviceClass);
    if (panel != nullptr) panel->frame().setVisible(true);
  });
}

std::int32_t DeviceClasses::selectedClass() const {
  return cmbActionDeviceClass.listIndex() < 0 ? 0 : cmbActionDeviceClass.selectedData();
}

}  // namespace pelorin
