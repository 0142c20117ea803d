// What a CCTV switcher does when the trigger fires: call a camera to a monitor, or raise or
// acknowledge an alarm of its own.
#pragma once

#include <cstdint>

#include "catalog/event_catalogue.h"
#include "editor/panel/action_panel.h"
#include "editor/panel/panel_field.h"

namespace pelorin {

class CctvPanel : public ActionPanel {
 public:
  CctvPanel(Module1& module, EventCatalogue& catalogue, Parent page);

  Frame fraCCTVAction{page_, "fraCCTVAction", {180, 1080, 9600, 5550}, "CCTV Action"};
  Label lblCCTVSwitchers{fraCCTVAction, "lblCCTVSwitchers", {240, 465, 1140, 255}, "Switcher:"};
  FieldCombo cmbCCTVSwitchers{fraCCTVAction, "cmbCCTVSwitchers", {1440, 420, 4500, 330}};
  Label lblCTCVAction{fraCCTVAction, "lblCTCVAction", {240, 945, 1140, 255}, "Action:"};
  FieldCombo cmbCCTVActions{fraCCTVAction, "cmbCCTVActions", {1440, 900, 4500, 330}};
  Label lblCamera{fraCCTVAction, "lblCCTVCamAction(2)", {240, 1425, 1140, 255}, "Camera:"};
  FieldCombo cmbCCTVCameras{fraCCTVAction, "cmbCCTVCameras", {1440, 1380, 4500, 330}};
  Label lblPreset{fraCCTVAction, "lblCCTVCamAction(1)", {240, 1905, 1140, 255}, "Preset:"};
  FieldCombo cmbCCTVPresets{fraCCTVAction, "cmbCCTVPresets", {1440, 1860, 4500, 330}};
  Label lblMonitor{fraCCTVAction, "lblCCTVCamAction(0)", {240, 2385, 1140, 255}, "Monitor:"};
  FieldCombo cmbCCTVMonitors{fraCCTVAction, "cmbCCTVMonitors", {1440, 2340, 1500, 330}};
  CheckBox chkCCTVDisplayViewer{fraCCTVAction,
                                "chkCCTVDisplayViewer",
                                {1440, 2820, 8100, 330},
                                "Display Viewer associated with monitor"};
  Label lblCCTVAlarm{fraCCTVAction, "lblCCTVAlarm", {240, 3345, 1140, 255}, "Alarm:"};
  TextBox txtCCTVAlarm{fraCCTVAction, "txtCCTVAlarm", {1440, 3300, 1500, 330}};
  CheckBox chkCCTVAutoRTNTriggers{
      fraCCTVAction,
      "chkCCTVAutoRTNTriggers",
      {1440, 3780, 8100, 330},
      "Automatically generate RTN triggers to acknowledge alarms on switcher"};
  // Row for row parallel to the switchers.
  ComboBox cmbCCTVHiddenININameCache{page_, "cmbCCTVHiddenININameCache", {6300, 420, 1500, 330}};

  std::int32_t deviceClass() const noexcept override { return device_class::cctv; }
  const char* ownClassName() const noexcept override { return "CCTV"; }
  Frame& frame() noexcept override { return fraCCTVAction; }
  // The alarm controls take the places of the camera controls.
  void prepare() override;
  bool readTrigger(std::int32_t triggerId, TriggerData& data) override;
  bool load(std::int32_t taId) override;
  bool save(SaveSteps& steps) override;

  void LoadCCTVSwitcherCombo(FieldCombo& combo);
  void InitCCTVActionCombo(FieldCombo& combo);
  void IsCCTVActionSupported(std::int16_t action, bool& supported) const;
  void InitCCTVCameras(FieldCombo& combo, std::int32_t switcherId);
  void InitCCTVMonitors(FieldCombo& combo, std::int32_t switcherId);
  void InitCCTVCameraPresets(std::int32_t switcherId, FieldCombo& combo, std::int32_t cameraIndex);

  void cmbCCTVSwitchers_Click();
  void cmbCCTVCameras_Click();
  void cmbCCTVActions_Click();

 private:
  void showCameraControls(bool visible);
  void showAlarmControls(bool visible);

  EventCatalogue& catalogue_;
  PanelFields fields_;
};

}  // namespace pelorin
