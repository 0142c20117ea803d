#include "editor/cctv_panel.h"

#include <string>

#include "common/combo_helpers.h"
#include "common/guard.h"
#include "editor/action_values.h"
#include "editor/switcher_settings.h"

namespace pelorin {

struct CctvPanel::StoredAction {
  std::int32_t switcher;
  std::int32_t action;
  std::int32_t camera;
  std::int32_t monitor;
  std::int32_t preset;
  bool openViewer;
  std::string alarm;

  explicit StoredAction(const RecordSet& row)
      : switcher(row.int32("SwitcherID")),
        action(row.int32("A_type")),
        camera(row.int32("Camera")),
        monitor(row.int32("Monitor")),
        preset(row.int32("PresetID")),
        openViewer(row.boolean("OpenViewer")),
        alarm(row.text("SWAlarmIndex")) {}
};

CctvPanel::CctvPanel(Module1& module, TabControl& tabs, int page)
    : fraCCTVAction("fraCCTVAction", {180, 1080, 9600, 5550}, "CCTV Action"),
      lblCCTVSwitchers("lblCCTVSwitchers", {240, 465, 1140, 255}, "Switcher:"),
      cmbCCTVSwitchers("cmbCCTVSwitchers", {1440, 420, 4500, 330}),
      cmbCCTVHiddenININameCache("cmbCCTVHiddenININameCache", {6300, 420, 1500, 330}),
      lblCTCVAction("lblCTCVAction", {240, 945, 1140, 255}, "Action:"),
      cmbCCTVActions("cmbCCTVActions", {1440, 900, 4500, 330}),
      lblCamera("lblCCTVCamAction(2)", {240, 1425, 1140, 255}, "Camera:"),
      cmbCCTVCameras("cmbCCTVCameras", {1440, 1380, 4500, 330}),
      lblPreset("lblCCTVCamAction(1)", {240, 1905, 1140, 255}, "Preset:"),
      cmbCCTVPresets("cmbCCTVPresets", {1440, 1860, 4500, 330}),
      lblMonitor("lblCCTVCamAction(0)", {240, 2385, 1140, 255}, "Monitor:"),
      cmbCCTVMonitors("cmbCCTVMonitors", {1440, 2340, 1500, 330}),
      chkCCTVDisplayViewer("chkCCTVDisplayViewer", {1440, 2820, 8100, 330},
                           "Display Viewer associated with monitor"),
      lblCCTVAlarm("lblCCTVAlarm", {240, 3345, 1140, 255}, "Alarm:"),
      txtCCTVAlarm("txtCCTVAlarm", {1440, 3300, 1500, 330}),
      chkCCTVAutoRTNTriggers(
          "chkCCTVAutoRTNTriggers", {1440, 3780, 8100, 330},
          "Automatically generate RTN triggers to acknowledge alarms on switcher"),
      module_(module) {
  for (Control* control : controls()) control->setContainer(fraCCTVAction);
  fraCCTVAction.setContainer(tabs, page);
  fraCCTVAction.setVisible(false);
  cmbCCTVHiddenININameCache.setContainer(tabs, page);
  cmbCCTVHiddenININameCache.setText("hidden");
  cmbCCTVHiddenININameCache.setVisible(false);
  cmbCCTVSwitchers.onClick = [this] { cmbCCTVSwitchers_Click(); };
  cmbCCTVCameras.onClick = [this] { cmbCCTVCameras_Click(); };
  cmbCCTVActions.onClick = [this] { cmbCCTVActions_Click(); };
}

std::vector<Control*> CctvPanel::controls() {
  return {&fraCCTVAction,  &lblCCTVSwitchers, &cmbCCTVSwitchers,       &lblCTCVAction,
          &cmbCCTVActions, &lblCamera,        &cmbCCTVCameras,         &lblPreset,
          &cmbCCTVPresets, &lblMonitor,       &cmbCCTVMonitors,        &chkCCTVDisplayViewer,
          &lblCCTVAlarm,   &txtCCTVAlarm,     &chkCCTVAutoRTNTriggers, &cmbCCTVHiddenININameCache};
}

void CctvPanel::layOut() {
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

bool CctvPanel::LoadCCTVAction(std::int32_t taId) {
  bool whole = true;
  const bool read = guarded(module_, "frmTriggerAction.LoadCCTVAction", [&] {
    const HourglassPointer hourglass(module_.screen());
    LoadCCTVSwitcherCombo(cmbCCTVSwitchers);
    if (taId <= 0) return;
    RecordSet rows = module_.DBConnection()->open(
        "select * from CCTV_TriggerAction where TA_ID = " + std::to_string(taId));
    if (!rows.next()) return;
    const StoredAction stored(rows);
    rows.close();
    showStored(stored);
    whole = showsWhole(stored);
  });
  return read && whole;
}

// The controls that the action hides are saved with what they hold.
bool CctvPanel::showsWhole(const StoredAction& stored) const {
  const auto stands = [](const ComboBox& combo, std::int32_t value, bool listRead) {
    return standsFor(combo, value, listRead, !combo.visible());
  };
  return standsFor(cmbCCTVSwitchers, stored.switcher, read_.switchers) &&
         standsFor(cmbCCTVActions, stored.action, read_.actions) &&
         stands(cmbCCTVCameras, stored.camera, read_.cameras) &&
         stands(cmbCCTVMonitors, stored.monitor, read_.monitors) &&
         standsFor(cmbCCTVPresets, stored.preset, read_.presets, true);
}

void CctvPanel::showStored(const StoredAction& stored) {
  SelectComboItemByData(cmbCCTVSwitchers, stored.switcher);
  SelectComboItemByData(cmbCCTVActions, stored.action);
  SelectComboItemByData(cmbCCTVCameras, stored.camera);
  SelectComboItemByData(cmbCCTVMonitors, stored.monitor);
  SelectComboItemByData(cmbCCTVPresets, stored.preset);
  chkCCTVDisplayViewer.setChecked(stored.openViewer);
  txtCCTVAlarm.setText(stored.alarm);
}

void CctvPanel::LoadCCTVSwitcherCombo(ComboBox& combo) {
  read_.switchers = guarded(module_, "frmTriggerAction.LoadCCTVSwitcherCombo", [&] {
    m_bLoadingCCTVSwitchers = true;
    RecordSet rows =
        module_.DBConnection()->open("select SwitcherID, Name, INI_FILE from CCTV_Switchers");
    while (rows.next()) {
      combo.addItem(rows.text("Name"), rows.int32("SwitcherID"));
      cmbCCTVHiddenININameCache.addItem(rows.text("INI_FILE"));
    }
    selectFirstRow(combo);
    m_bLoadingSwitchers = false;
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

void CctvPanel::InitCCTVActionCombo(ComboBox& combo) {
  read_.actions = guarded(module_, "frmTriggerAction.InitCCTVActionCombo", [&] {
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

void CctvPanel::InitCCTVCameras(ComboBox& combo, std::int32_t switcherId) {
  read_.cameras = guarded(module_, "frmTriggerAction.InitCCTVCameras", [&] {
    combo.clear();
    cmbCCTVPresets.clear();
    read_.presets = true;
    RecordSet rows = module_.DBConnection()->open(
        "select Name, [Index] from CCTV_Cameras where SwitcherId =" + std::to_string(switcherId) +
        " order by [index]");
    while (rows.next()) combo.addItem(rows.text("Name"), rows.int32("index"));
    selectFirstRow(combo);
  });
}

void CctvPanel::InitCCTVMonitors(ComboBox& combo, std::int32_t switcherId) {
  read_.monitors = guarded(module_, "frmTriggerAction.InitCCTVMonitors", [&] {
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

void CctvPanel::InitCCTVCameraPresets(std::int32_t switcherId, ComboBox& combo,
                                      std::int32_t cameraIndex) {
  read_.presets = guarded(module_, "frmTriggerAction.InitCCTVCameraPresets", [&] {
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
