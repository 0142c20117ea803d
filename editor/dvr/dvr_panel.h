// What a video recorder does when the trigger fires: record a camera at a rate for a time, move it
// to a preset, open a view group, execute a command set.
#pragma once

#include <cstdint>

#include "editor/dvr/record_rate_table.h"
#include "editor/panel/action_panel.h"
#include "editor/panel/panel_field.h"

namespace pelorin {

class DvrPanel : public ActionPanel {
 public:
  // Recorders of this vendor take neither an alarm duration nor a camera preset.
  static constexpr std::int16_t vendorWithoutDuration = 4;
  static constexpr const char* usualDuration = "15";

  DvrPanel(Module1& module, Parent page);

  Frame fraDVRAction{page_, "fraDVRAction", {180, 1080, 9600, 5550}, "Trigger Alarm on DVR"};
  Label lblDVRUnit{fraDVRAction, "lblDVRUnit", {240, 465, 3300, 255}, "DVR:"};
  FieldCombo cmbDVRUnit{fraDVRAction, "cmbDVRUnit", {3600, 420, 4500, 330}};
  Label lblDVRCamera{fraDVRAction, "lblDVRCamera", {240, 945, 3300, 255}, "Camera:"};
  FieldCombo cmbDVRCamera{fraDVRAction, "cmbDVRCamera", {3600, 900, 4500, 330}};
  Label lblDVRRecordRate{fraDVRAction, "lblDVRRecordRate", {240, 1425, 3300, 255}, "Record Rate:"};
  FieldCombo cmbDVRRecordRate{fraDVRAction, "cmbDVRRecordRate", {3600, 1380, 1800, 330}};
  FieldCombo cmbRecordStandard{fraDVRAction, "cmbRecordStandard", {5580, 1380, 1500, 330}};
  Label lblDVRAlarmDuration{
      fraDVRAction, "lblDVRAlarmDuration", {240, 1905, 3300, 255}, "Alarm Duration (5-300 sec):"};
  TextBox txtDVRAlarmDuration{
      fraDVRAction, "txtDVRAlarmDuration", {3600, 1860, 1800, 330}, usualDuration};
  Label lblDVRCameraPresets{fraDVRAction, "lblDVRCameraPresets", {240, 2385, 3300, 255}, "Preset:"};
  FieldCombo cmbDVRCameraPresets{fraDVRAction, "cmbDVRCameraPresets", {3600, 2340, 4500, 330}};
  Label lblDVRViewGroups{fraDVRAction,
                         "lblDVRViewGroups",
                         {240, 2865, 9120, 255},
                         "Optionally launch the Video Explorer window using this View Group:"};
  FieldCombo cmbDVRViewGroups{fraDVRAction, "cmbDVRViewGroups", {3600, 3180, 4500, 330}};
  Label lblCommandSet{
      fraDVRAction, "lblCommandSet", {240, 3705, 3300, 255}, "Execute command set:"};
  FieldCombo cmbCommandSet{fraDVRAction, "cmbCommandSet", {3600, 3660, 4500, 330}};

  std::int32_t deviceClass() const noexcept override { return device_class::dvr; }
  Frame& frame() noexcept override { return fraDVRAction; }
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
