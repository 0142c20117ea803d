// What a video recorder does when the trigger fires: record a camera at a rate for a time, move it
// to a preset, open a view group, execute a command set.
#pragma once

#include <cstdint>
#include <vector>

#include "common/module1.h"
#include "controls/item_lists.h"
#include "controls/simple_controls.h"
#include "controls/tab_control.h"
#include "editor/record_rate_table.h"

namespace pelorin {

class DvrPanel {
 public:
  // Recorders of this vendor take neither an alarm duration nor a camera preset.
  static constexpr std::int16_t vendorWithoutDuration = 4;

  DvrPanel(Module1& module, TabControl& tabs, int page);

  Frame fraDVRAction;
  Label lblDVRUnit;
  ComboBox cmbDVRUnit;
  Label lblDVRCamera;
  ComboBox cmbDVRCamera;
  Label lblDVRRecordRate;
  ComboBox cmbDVRRecordRate;
  ComboBox cmbRecordStandard;
  Label lblDVRAlarmDuration;
  TextBox txtDVRAlarmDuration;
  Label lblDVRCameraPresets;
  ComboBox cmbDVRCameraPresets;
  Label lblDVRViewGroups;
  ComboBox cmbDVRViewGroups;
  Label lblCommandSet;
  ComboBox cmbCommandSet;

  std::vector<Control*> controls();

  // 0 when the recorder's vendor is unknown.
  std::int16_t vendorType() const noexcept { return vendorType_; }
  const RecordRateTable& rates() const noexcept { return rates_; }
  void InitRecordRateTable() { rates_.InitRecordRateTable(); }

  // Fills the panel and shows the stored action, or the values of a new one. False when something
  // of the stored action that would be saved again could not be read.
  bool LoadDVRAction(std::int32_t actionId);
  void LoadDVRUnitCombo(ComboBox& combo);
  void LoadDVRCameraCombo(ComboBox& combo, std::int32_t recorderId);
  void LoadDVRCameraPresets(std::int32_t recorderId, ComboBox& combo, std::int32_t cameraIndex);
  void ConfigureFormByVendor(std::int32_t recorderId);
  void LoadCommandSetCombo(ComboBox& combo);
  void LoadDVRVideoExplorerGroups(ComboBox& combo);

  void cmbDVRUnit_Click();
  void cmbDVRCamera_Click();
  void cmbRecordStandard_Click();
  // Keeps digits and backspace; any other key becomes 0.
  static void txtDVRAlarmDuration_KeyPress(char32_t& key);
  // Clamps the text to 5 to 300.
  void txtDVRAlarmDuration_Validate();

 private:
  struct StoredAction;
  // Whether each list was read to its end when it was last filled.
  struct ListsRead {
    bool units = true;
    bool cameras = true;
    bool presets = true;
    bool viewGroups = true;
    bool commandSets = true;
  };

  bool showsWhole(const StoredAction& stored) const;
  void showStored(const StoredAction& stored);
  void showNew();

  Module1& module_;
  RecordRateTable rates_;
  std::int16_t vendorType_ = 0;
  ListsRead read_;
  bool m_bLoadingDVRUnits = false;
};

}  // namespace pelorin
