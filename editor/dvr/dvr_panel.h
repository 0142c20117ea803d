// What a video recorder does when the trigger fires: record a camera at a rate for a time, move it
// to a preset, open a view group, execute a command set.
#pragma once

#include <cstdint>
#include <vector>

#include "controls/tab_control.h"
#include "editor/dvr/record_rate_table.h"
#include "editor/panel/action_panel.h"
#include "editor/panel/panel_field.h"

namespace pelorin {

class DvrPanel : public ActionPanel {
 public:
  // Recorders of this vendor take neither an alarm duration nor a camera preset.
  static constexpr std::int16_t vendorWithoutDuration = 4;

  DvrPanel(Module1& module, TabControl& tabs, int page);

  Frame fraDVRAction;
  Label lblDVRUnit;
  FieldCombo cmbDVRUnit;
  Label lblDVRCamera;
  FieldCombo cmbDVRCamera;
  Label lblDVRRecordRate;
  FieldCombo cmbDVRRecordRate;
  FieldCombo cmbRecordStandard;
  Label lblDVRAlarmDuration;
  TextBox txtDVRAlarmDuration;
  Label lblDVRCameraPresets;
  FieldCombo cmbDVRCameraPresets;
  Label lblDVRViewGroups;
  FieldCombo cmbDVRViewGroups;
  Label lblCommandSet;
  FieldCombo cmbCommandSet;

  std::int32_t deviceClass() const noexcept override { return device_class::dvr; }
  Frame& frame() noexcept override { return fraDVRAction; }
  std::vector<Control*> controls() override;
  void prepare() override { rates_.InitRecordRateTable(); }
  bool load(std::int32_t actionId) override;
  bool save(SaveSteps& steps) override;

  // 0 when the recorder's vendor is unknown.
  std::int16_t vendorType() const noexcept { return vendorType_; }
  void LoadDVRUnitCombo(FieldCombo& combo);
  void LoadDVRCameraCombo(FieldCombo& combo, std::int32_t recorderId);
  void LoadDVRCameraPresets(std::int32_t recorderId, FieldCombo& combo, std::int32_t cameraIndex);
  void ConfigureFormByVendor(std::int32_t recorderId);
  void LoadCommandSetCombo(FieldCombo& combo);
  void LoadDVRVideoExplorerGroups(FieldCombo& combo);

  void cmbDVRUnit_Click();
  void cmbDVRCamera_Click();
  void cmbRecordStandard_Click();
  // Keeps digits and backspace; any other key becomes 0.
  static void txtDVRAlarmDuration_KeyPress(char32_t& key);
  // Clamps the text to 5 to 300.
  void txtDVRAlarmDuration_Validate();

 private:
  FieldControl recordStandard();
  FieldControl recordRate();
  void showNew();

  RecordRateTable rates_;
  std::int16_t vendorType_ = 0;
  bool m_bLoadingDVRUnits = false;
  PanelFields fields_;
};

}  // namespace pelorin
