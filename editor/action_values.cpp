#include "editor/action_values.h"

#include "common/value.h"
#include "editor/cctv_panel.h"
#include "editor/dvr_panel.h"

namespace pelorin {

std::int32_t dataOrZero(const ComboBox& combo) {
  return combo.listIndex() < 0 ? 0 : combo.selectedData();
}

bool standsFor(const ComboBox& combo, std::int32_t stored, bool listRead, bool optional) {
  if (listRead) return true;
  if (combo.listIndex() < 0) return optional && stored == 0;
  return combo.selectedData() == stored;
}

std::int32_t requiredData(const ComboBox& combo, const std::string& field, SourceLine where) {
  if (combo.listIndex() < 0) {
    throw RunTimeError(error_number::invalidPropertyValue, "Nothing is selected: " + field,
                       where.line());
  }
  return combo.selectedData();
}

namespace {

// The chosen action hides the combos that it does not use.
std::int16_t requiredUnlessHidden(const ComboBox& combo, const std::string& field) {
  return narrowInt16(combo.visible() ? requiredData(combo, field) : dataOrZero(combo));
}

}  // namespace

CctvValues readValues(const CctvPanel& panel) {
  CctvValues values;
  values.switcher = requiredData(panel.cmbCCTVSwitchers, "Switcher");
  values.monitor = requiredUnlessHidden(panel.cmbCCTVMonitors, "Monitor");
  values.camera = requiredUnlessHidden(panel.cmbCCTVCameras, "Camera");
  values.preset = narrowInt16(dataOrZero(panel.cmbCCTVPresets));
  values.action = narrowInt16(requiredData(panel.cmbCCTVActions, "Action"));
  values.alarm = parseInt16(panel.txtCCTVAlarm.text());
  values.openViewer = panel.chkCCTVDisplayViewer.checked();
  return values;
}

DvrValues readValues(const DvrPanel& panel) {
  DvrValues values;
  values.recorder = requiredData(panel.cmbDVRUnit, "DVR");
  values.camera = requiredData(panel.cmbDVRCamera, "Camera");
  values.commandSet = requiredData(panel.cmbCommandSet, "Execute command set");
  values.recordStandard = requiredData(panel.cmbRecordStandard, "Record standard");
  requiredData(panel.cmbDVRRecordRate, "Record Rate");
  values.rate =
      panel.rates().GetRecordRate(knownStandard(values.recordStandard),
                                  static_cast<std::int16_t>(panel.cmbDVRRecordRate.listIndex()));
  values.alarmDuration = parseInt32(panel.txtDVRAlarmDuration.text());
  values.preset = dataOrZero(panel.cmbDVRCameraPresets);
  values.viewGroup = requiredData(panel.cmbDVRViewGroups, "View Group");
  return values;
}

}  // namespace pelorin
