#include "editor/cctv/cctv_panel.h"

#include <string>

#include "common/combo_helpers.h"
#include "common/guard.h"
#include "editor/cctv/cctv_action.h"
#include "editor/cctv/cctv_save.h"
#include "editor/cctv/switcher_settings.h"

namespace pelorin {

CctvPanel::CctvPanel(Module1& module, EventCatalogue& catalogue, Parent page)
    : ActionPanel(module, page),
      catalogue_(catalogue),
      // The switcher reloads every list below it, the camera the presets.
      fields_{{1, "SwitcherID", choice(cmbCCTVSwitchers, "Switcher")},
              {2, "Monitor", narrow(choice(cmbCCTVMonitors, "Monitor", Needed::WhileVisible))},
              {3, "Camera", narrow(choice(cmbCCTVCameras, "Camera", Needed::WhileVisible))},
              {4, "PresetID", narrow(choice(cmbCCTVPresets, "Preset", Needed::Never))},
              {cctv_argument::action, "A_type", narrow(choice(cmbCCTVActions, "Action"))},
              {10, "SWAlarmIndex", narrow(wholeNumber(txtCCTVAlarm))},
              {11, "OpenViewer", mark(chkCCTVDisplayViewer)}} {
  fraCCTVAction.setVisible(false);
  cmbCCTVHiddenININameCache.setText("hidden");
  cmbCCTVHiddenININameCache.setVisible(false);
  cmbCCTVSwitchers.onClick = [this] { cmbCCTVSwitchers_Click(); };
  cmbCCTVCameras.onClick = [this] { cmbCCTVCameras_Click(); };
  cmbCCTVActions.onClick = [this] { cmbCCTVActions_Click(); };
}

void CctvPanel::prepare() {
  const auto moveTo = [](Control& control, int left, int top) {
    control.setPlace({left, top, control.place().width, control.place().height});
  };
  moveTo(txtCCTVAlarm, cmbCCTVCameras.place().left, cmbCCTVCameras.place().top);
  moveTo(chkCCTVAutoRTNTriggers, txtCCTVAlarm.place().left, cmbCCTVPresets.place().top);
  moveTo(lblCCTVAlarm, lblCamera.place().left, lblCamera.place().top);
  showAlarmControls(false);
  chkCCTVAutoRTNTriggers.setVisible(false);
  chkCCTVAutoRTNTriggers.setChecked(false);
}

bool CctvPanel::readTrigger(std::int32_t triggerId, TriggerData& data) {
  return GetCCTVTriggerData(module_, triggerId, data);
}

bool CctvPanel::load(std::int32_t taId) {
  bool whole = true;
  const bool read = guarded(module_, "frmTriggerAction.LoadCCTVAction", [&] {
    const HourglassPointer hourglass(module_.screen());
    LoadCCTVSwitcherCombo(cmbCCTVSwitchers);
    if (taId <= 0) return;
    RecordSet rows = module_.DBConnection()->open(
        "select * from CCTV_TriggerAction where TA_ID = " + std::to_string(taId));
    if (rows.next()) whole = showStored(fields_, rows);
  });
  return read && whole;
}

bool CctvPanel::save(SaveSteps& steps) {
  return guardedOr(module_, "frmTriggerAction.SaveCCTVTriggerAction", false, [&] {
    if (!steps.ValidateTriggerLocation()) return false;
    if (cmbCCTVSwitchers.listIndex() < 0) {
      module_.inform("Cannot save trigger. There are no CCTV units defined for this trigger");
      return false;
    }
    CctvSave save(module_, catalogue_, steps, readValues(fields_), chkCCTVAutoRTNTriggers);
    if (steps.state().m_TriggerID != 0) return save.update();
    save.insert();
    return true;
  });
}

void CctvPanel::LoadCCTVSwitcherCombo(FieldCombo& combo) {
  combo.listRead = guarded(module_, "frmTriggerAction.LoadCCTVSwitcherCombo", [&] {
    RecordSet rows =
        module_.DBConnection()->open("select SwitcherID, Name, INI_FILE from CCTV_Switchers");
    while (rows.next()) {
      combo.addItem(rows.text("Name"), rows.int32("SwitcherID"));
      cmbCCTVHiddenININameCache.addItem(rows.text("INI_FILE"));
    }
    selectFirstRow(combo);
  });
}

void CctvPanel::cmbCCTVSwitchers_Click() {
  guarded(module_, "frmTriggerAction.cmbCCTVSwitchers_Click", [this] {
    if (cmbCCTVSwitchers.listIndex() < 0) return;
    const HourglassPointer hourglass(module_.screen());
    const std::int32_t switcherId = cmbCCTVSwitchers.selectedData();
    InitCCTVActionCombo(cmbCCTVActions);
    InitCCTVCameras(cmbCCTVCameras, switcherId);
    InitCCTVMonitors(cmbCCTVMonitors, switcherId);
  });
}

void CctvPanel::InitCCTVActionCombo(FieldCombo& combo) {
  combo.listRead = guarded(module_, "frmTriggerAction.InitCCTVActionCombo", [&] {
    combo.clear();
    combo.addItem(module_.GetCCTVActionName(cctv_action::callCamera), cctv_action::callCamera);
    for (const std::int16_t action : {cctv_action::raiseAlarm, cctv_action::acknowledgeAlarm}) {
      bool supported = false;
      IsCCTVActionSupported(action, supported);
      if (supported) combo.addItem(module_.GetCCTVActionName(action), action);
    }
    selectFirstRow(combo);
  });
}

void CctvPanel::IsCCTVActionSupported(std::int16_t action, bool& supported) const {
  const ListRow& name = cmbCCTVHiddenININameCache.row(cmbCCTVSwitchers.listIndex());
  supported = switcherSupports(module_, name.text, action);
}

void CctvPanel::InitCCTVCameras(FieldCombo& combo, std::int32_t switcherId) {
  combo.listRead = guarded(module_, "frmTriggerAction.InitCCTVCameras", [&] {
    combo.clear();
    cmbCCTVPresets.clear();
    cmbCCTVPresets.listRead = true;
    RecordSet rows = module_.DBConnection()->open(
        "select Name, [Index] from CCTV_Cameras where SwitcherId =" + std::to_string(switcherId) +
        " order by [index]");
    while (rows.next()) combo.addItem(rows.text("Name"), rows.int32("index"));
    selectFirstRow(combo);
  });
}

void CctvPanel::InitCCTVMonitors(FieldCombo& combo, std::int32_t switcherId) {
  combo.listRead = guarded(module_, "frmTriggerAction.InitCCTVMonitors", [&] {
    combo.clear();
    RecordSet rows = module_.DBConnection()->open(
        "select nOutputs from CCTV_Switchers where SwitcherId = " + std::to_string(switcherId));
    const std::int16_t outputs = rows.next() ? rows.int16("noutputs") : std::int16_t{0};
    for (int monitor = 1; monitor <= outputs; ++monitor) {
      combo.addItem(std::to_string(monitor), monitor);
    }
    rows.close();
    selectFirstRow(combo);
  });
}

void CctvPanel::cmbCCTVCameras_Click() {
  guarded(module_, "frmTriggerAction.cmbCCTVCameras_Click", [this] {
    if (cmbCCTVCameras.listIndex() < 0) return;
    const HourglassPointer hourglass(module_.screen());
    InitCCTVCameraPresets(cmbCCTVSwitchers.selectedData(), cmbCCTVPresets,
                          cmbCCTVCameras.selectedData());
  });
}

void CctvPanel::InitCCTVCameraPresets(std::int32_t switcherId, FieldCombo& combo,
                                      std::int32_t cameraIndex) {
  combo.listRead = guarded(module_, "frmTriggerAction.InitCCTVCameraPresets", [&] {
    combo.clear();
    RecordSet rows =
        module_.DBConnection()->open("CCTV_FetchCameraNoPresets " + std::to_string(cameraIndex) +
                                     ", " + std::to_string(switcherId));
    while (rows.next()) combo.addItem(rows.text("PresetName"), rows.int32("PresetID"));
    selectFirstRow(combo);
  });
}

void CctvPanel::cmbCCTVActions_Click() {
  guarded(module_, "frmTriggerAction.cmbCCTVActions_Click", [this] {
    if (cmbCCTVActions.listIndex() < 0) return;
    const std::int32_t action = cmbCCTVActions.selectedData();
    if (action < cctv_action::callCamera || action > cctv_action::acknowledgeAlarm) return;
    showCameraControls(action == cctv_action::callCamera);
    showAlarmControls(action != cctv_action::callCamera);
    chkCCTVAutoRTNTriggers.setVisible(action == cctv_action::raiseAlarm);
    if (action != cctv_action::raiseAlarm) chkCCTVAutoRTNTriggers.setChecked(false);
  });
}

void CctvPanel::showCameraControls(bool visible) {
  for (Control* control :
       std::initializer_list<Control*>{&lblCamera, &cmbCCTVCameras, &lblPreset, &cmbCCTVPresets,
                                       &lblMonitor, &cmbCCTVMonitors, &chkCCTVDisplayViewer}) {
    control->setVisible(visible);
  }
}

void CctvPanel::showAlarmControls(bool visible) {
  lblCCTVAlarm.setVisible(visible);
  txtCCTVAlarm.setVisible(visible);
}

}  // namespace pelorin
