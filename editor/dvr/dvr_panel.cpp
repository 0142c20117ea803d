#include "editor/dvr/dvr_panel.h"

#include <string>
#include <string_view>
#include <utility>

#include "base/flag_while.h"
#include "common/combo_helpers.h"
#include "common/guard.h"
#include "editor/dvr/dvr_save.h"

namespace pelorin {

namespace {

constexpr std::int32_t noPresetText = 2161;
constexpr std::int32_t noViewGroupText = 3553;

// A text of any length is a number here: more digits than these are beyond every limit anyway.
double durationOf(std::string_view text) {
  constexpr std::size_t digitsThatMatter = 300;
  return parseNumber(text.substr(0, digitsThatMatter));
}

}  // namespace

DvrPanel::DvrPanel(Module1& module, Parent page)
    : ActionPanel(module, page),
      // The recorder reloads the lists of cameras and command sets, the camera the presets, the
      // standard the rates.
      fields_{{1, "ID_DVR_Config", choice(cmbDVRUnit, "DVR")},
              {2, "CameraIndex", choice(cmbDVRCamera, "Camera")},
              {8, "CommandSetID", choice(cmbCommandSet, "Execute command set")},
              {5, "RecordStandard", recordStandard()},
              {3, "RecordRate", recordRate()},
              {4, "AlarmDuration", wholeNumber(txtDVRAlarmDuration)},
              {6, "ptzPresetID", choice(cmbDVRCameraPresets, "Preset", Needed::Never), "PresetID"},
              {7, "ViewGroupID", choice(cmbDVRViewGroups, "View Group")}} {
  fraDVRAction.setVisible(false);
  cmbRecordStandard.addItem("NTSC", record_standard::ntsc);
  cmbRecordStandard.addItem("PAL", record_standard::pal);
  cmbDVRUnit.onClick = [this] { cmbDVRUnit_Click(); };
  cmbDVRCamera.onClick = [this] { cmbDVRCamera_Click(); };
  cmbRecordStandard.onClick = [this] { cmbRecordStandard_Click(); };
  txtDVRAlarmDuration.onKeyPress = txtDVRAlarmDuration_KeyPress;
  txtDVRAlarmDuration.onValidate = [this] { txtDVRAlarmDuration_Validate(); };
}

// Standards that are not known show a known one.
FieldControl DvrPanel::recordStandard() {
  FieldControl control = choice(cmbRecordStandard, "Record standard");
  control.show = [this](const Value& stored) {
    SelectComboItemByData(cmbRecordStandard, knownStandard(toInt32(stored)));
  };
  return control;
}

// The rate of the selected row, in the standard that is selected.
FieldControl DvrPanel::recordRate() {
  return {[](const RecordSet& row, const char* column) -> Value { return row.real(column); },
          [this](const Value& stored) {
            auto standard = narrowInt16(cmbRecordStandard.selectedData());
            cmbDVRRecordRate.setListIndex(rates_.FindRecordRateIndex(standard, toReal(stored)));
          },
          [](const Value&) { return true; },
          [this]() -> Value {
            requiredData(cmbDVRRecordRate, "Record Rate");
            return rates_.GetRecordRate(knownStandard(cmbRecordStandard.selectedData()),
                                        narrowInt16(cmbDVRRecordRate.listIndex()));
          }};
}

bool DvrPanel::load(std::int32_t actionId) {
  bool whole = true;
  const bool read = guarded(module_, "frmTriggerAction.LoadDVRAction", [&] {
    const HourglassPointer hourglass(module_.screen());
    LoadDVRUnitCombo(cmbDVRUnit);
    LoadDVRVideoExplorerGroups(cmbDVRViewGroups);
    RecordSet rows = module_.DBConnection()->open(
        "select * from DVR_TriggerActions (NOLOCK) where DVRActionID = " +
        std::to_string(actionId));
    if (!rows.next()) return showNew();
    whole = showStored(fields_, rows);
  });
  return read && whole;
}

bool DvrPanel::save(SaveSteps& steps) {
  return guardedOr(module_, "frmTriggerAction.SaveDVRTriggerAction", false, [&] {
    if (cmbDVRUnit.listIndex() < 0) {
      module_.inform("Cannot save trigger. There are no DVR units defined for this trigger");
      return false;
    }
    Arguments values = readValues(fields_);
    if (parseInt32(txtDVRAlarmDuration.text()) == 0 && vendorType_ != vendorWithoutDuration) {
      module_.inform("Required field missing. Must specify Alarm duration.");
      return false;
    }
    if (!steps.ValidateTriggerLocation()) return false;
    DvrSave save(module_, steps, std::move(values));
    if (!steps.state().addMode()) return save.update();
    save.insert();
    return true;
  });
}

void DvrPanel::showNew() {
  SelectComboItemByData(cmbRecordStandard, record_standard::ntsc);
  selectFirstRow(cmbDVRViewGroups);
  txtDVRAlarmDuration.setText(usualDuration);
}

void DvrPanel::LoadDVRUnitCombo(FieldCombo& combo) {
  combo.listRead = guarded(module_, "frmTriggerAction.LoadDVRUnitCombo", [&] {
    {
      const FlagWhile loading(m_bLoadingDVRUnits);
      RecordSet rows = module_.DBConnection()->open("select ID, DVRName from DVR_Config");
      while (rows.next()) combo.addItem(rows.text("DVRName"), rows.int32("ID"));
    }
    selectFirstRow(combo);
  });
}

void DvrPanel::cmbDVRUnit_Click() {
  guarded(module_, "frmTriggerAction.cmbDVRUnit_Click", [this] {
    if (m_bLoadingDVRUnits || cmbDVRUnit.listIndex() < 0) return;
    const HourglassPointer hourglass(module_.screen());
    const std::int32_t recorderId = cmbDVRUnit.selectedData();
    LoadDVRCameraCombo(cmbDVRCamera, recorderId);
    LoadCommandSetCombo(cmbCommandSet);
    ConfigureFormByVendor(recorderId);
  });
}

void DvrPanel::LoadDVRCameraCombo(FieldCombo& combo, std::int32_t recorderId) {
  combo.listRead = guarded(module_, "frmTriggerAction.LoadDVRCameraCombo", [&] {
    combo.clear();
    cmbDVRCameraPresets.clear();
    cmbDVRCameraPresets.listRead = true;
    RecordSet rows = module_.DBConnection()->open(
        "select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = " +
        std::to_string(recorderId) + " order by CameraIndex");
    while (rows.next()) combo.addItem(rows.text("CameraName"), rows.int32("CameraIndex"));
    selectFirstRow(combo);
  });
}

void DvrPanel::cmbDVRCamera_Click() {
  guarded(module_, "frmTriggerAction.cmbDVRCamera_Click", [this] {
    const HourglassPointer hourglass(module_.screen());
    LoadDVRCameraPresets(cmbDVRUnit.selectedData(), cmbDVRCameraPresets,
                         cmbDVRCamera.selectedData());
  });
}

void DvrPanel::LoadDVRCameraPresets(std::int32_t recorderId, FieldCombo& combo,
                                    std::int32_t cameraIndex) {
  combo.listRead = guarded(module_, "frmTriggerAction.LoadDVRCameraPresets", [&] {
    combo.clear();
    combo.addItem(module_.GRS(noPresetText), 0);
    RecordSet rows = module_.DBConnection()->open(
        "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = " +
        std::to_string(recorderId) + " And CameraIndex = " + std::to_string(cameraIndex) +
        " order by PresetName");
    while (rows.next()) combo.addItem(rows.text("PresetName"), rows.int32("ID"));
    selectFirstRow(combo);
  });
}

void DvrPanel::ConfigureFormByVendor(std::int32_t recorderId) {
  guarded(module_, "frmTriggerAction.ConfigureFormByVendor", [&] {
    RecordSet rows =
        module_.DBConnection()->open("EXECUTE DVR_Getvendorinfo " + std::to_string(recorderId));
    vendorType_ = rows.next() ? rows.int16("DVRVendorID") : std::int16_t{0};
    rows.close();
    const bool takesDuration = vendorType_ != vendorWithoutDuration;
    txtDVRAlarmDuration.setEnabled(takesDuration);
    txtDVRAlarmDuration.setText(takesDuration ? usualDuration : "0");
    cmbDVRCameraPresets.setEnabled(takesDuration);
    if (!takesDuration) selectFirstRow(cmbDVRCameraPresets);
  });
}

void DvrPanel::LoadCommandSetCombo(FieldCombo& combo) {
  combo.listRead = guarded(module_, "frmTriggerAction.LoadCommandSetCombo", [&] {
    combo.clear();
    combo.addItem("<None>", 0);
    const std::int32_t operatorId = module_.NTConnection()->OperatorID();
    const std::int32_t workStationId = module_.NTConnection()->WorkStationID();
    RecordSet rows = module_.DBConnection()->open(
        "exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=" + std::to_string(operatorId) +
        ", @workstationid=" + std::to_string(workStationId));
    while (rows.next()) combo.addItem(rows.text("Name"), rows.int32("ObjectID"));
    selectFirstRow(combo);
  });
}

void DvrPanel::LoadDVRVideoExplorerGroups(FieldCombo& combo) {
  combo.listRead = guarded(module_, "frmTriggerAction.LoadDVRVideoExplorerGroups", [&] {
    combo.clear();
    combo.addItem(module_.GRS(noViewGroupText), 0);
    RecordSet rows = module_.DBConnection()->open(
        "select ID, Description from DVR_ViewGroups order by Description");
    while (rows.next()) combo.addItem(rows.text("Description"), rows.int32("ID"));
  });
}

void DvrPanel::cmbRecordStandard_Click() {
  guarded(module_, "frmTriggerAction.cmbRecordStandard_Click", [this] {
    auto standard = narrowInt16(cmbRecordStandard.selectedData());
    rates_.LoadRecordRateCombo(cmbDVRRecordRate, standard);
  });
}

void DvrPanel::txtDVRAlarmDuration_KeyPress(char32_t& key) {
  constexpr char32_t backspace = 8;
  const bool digit = key >= U'0' && key <= U'9';
  if (!digit && key != backspace) key = 0;
}

void DvrPanel::txtDVRAlarmDuration_Validate() {
  const double duration = durationOf(txtDVRAlarmDuration.text());
  if (duration < 5) txtDVRAlarmDuration.setText("5");
  if (duration > 300) txtDVRAlarmDuration.setText("300");
}

}  // namespace pelorin
