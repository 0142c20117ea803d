// What a CCTV switcher does when the trigger fires: call a camera to a monitor, or raise or
// acknowledge an alarm of its own.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog/event_catalogue.h"
#include "controls/tab_control.h"
#include "editor/panel/action_panel.h"
#include "editor/panel/panel_field.h"

namespace pelorin {

class CctvPanel : public ActionPanel {
 public:
  CctvPanel(Module1& module, EventCatalogue& catalogue, TabControl& tabs, int page);

  Frame fraCCTVAction;
  Label lblCCTVSwitchers;
  FieldCombo cmbCCTVSwitchers;
  ComboBox cmbCCTVHiddenININameCache;  // row for row parallel to the switchers
  Label lblCTCVAction;
  FieldCombo cmbCCTVActions;
  Label lblCamera;
  FieldCombo cmbCCTVCameras;
  Label lblPreset;
  FieldCombo cmbCCTVPresets;
  Label lblMonitor;
  FieldCombo cmbCCTVMonitors;
  CheckBox chkCCTVDisplayViewer;
  Label lblCCTVAlarm;
  TextBox txtCCTVAlarm;
  CheckBox chkCCTVAutoRTNTriggers;

  std::int32_t deviceClass() const noexcept override { return device_class::cctv; }
  const char* ownClassName() const noexcept override { return "CCTV"; }
  Frame& frame() noexcept override { return fraCCTVAction; }
  std::vector<Control*> controls() override;
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
