// What a CCTV switcher does when the trigger fires: call a camera to a monitor, or raise or
// acknowledge an alarm of its own.
#pragma once

#include <cstdint>
#include <vector>

#include "common/module1.h"
#include "controls/item_lists.h"
#include "controls/simple_controls.h"
#include "controls/tab_control.h"

namespace pelorin {

namespace cctv_action {
inline constexpr std::int16_t callCamera = 1;
inline constexpr std::int16_t raiseAlarm = 2;
inline constexpr std::int16_t acknowledgeAlarm = 3;
}  // namespace cctv_action

class CctvPanel {
 public:
  CctvPanel(Module1& module, TabControl& tabs, int page);

  Frame fraCCTVAction;
  Label lblCCTVSwitchers;
  ComboBox cmbCCTVSwitchers;
  ComboBox cmbCCTVHiddenININameCache;  // row for row parallel to the switchers
  Label lblCTCVAction;
  ComboBox cmbCCTVActions;
  Label lblCamera;
  ComboBox cmbCCTVCameras;
  Label lblPreset;
  ComboBox cmbCCTVPresets;
  Label lblMonitor;
  ComboBox cmbCCTVMonitors;
  CheckBox chkCCTVDisplayViewer;
  Label lblCCTVAlarm;
  TextBox txtCCTVAlarm;
  CheckBox chkCCTVAutoRTNTriggers;

  std::vector<Control*> controls();

  // The alarm controls take the places of the camera controls.
  void layOut();

  // Fills the panel and shows the stored action, if there is one. False when something of it that
  // would be saved again could not be read.
  bool LoadCCTVAction(std::int32_t taId);
  void LoadCCTVSwitcherCombo(ComboBox& combo);
  void InitCCTVActionCombo(ComboBox& combo);
  void IsCCTVActionSupported(std::int16_t action, bool& supported) const;
  void InitCCTVCameras(ComboBox& combo, std::int32_t switcherId);
  void InitCCTVMonitors(ComboBox& combo, std::int32_t switcherId);
  void InitCCTVCameraPresets(std::int32_t switcherId, ComboBox& combo, std::int32_t cameraIndex);

  void cmbCCTVSwitchers_Click();
  void cmbCCTVCameras_Click();
  void cmbCCTVActions_Click();

 private:
  struct StoredAction;
  // Whether each list was read to its end when it was last filled.
  struct ListsRead {
    bool switchers = true;
    bool actions = true;
    bool cameras = true;
    bool presets = true;
    bool monitors = true;
  };

  bool showsWhole(const StoredAction& stored) const;
  void showStored(const StoredAction& stored);
  void showCameraControls(bool visible);
  void showAlarmControls(bool visible);

  Module1& module_;
  ListsRead read_;
  // Written as the panel loads; nothing depends on them.
  bool m_bLoadingCCTVSwitchers = false;
  bool m_bLoadingSwitchers = false;
};

}  // namespace pelorin
