// The editor: one trigger action is created (for many locations and events at once) or changed.
#pragma once

#include <string>

#include "catalog/event_catalogue.h"
#include "catalog/trigger_store.h"
#include "common/form_links.h"
#include "common/module1.h"
#include "controls/form.h"
#include "controls/tab_control.h"
#include "editor/device_classes.h"
#include "editor/event_selection.h"
#include "editor/panel/action_panel.h"
#include "editor/panel/editor_state.h"
#include "editor/trigger_action_saver.h"
#include "editor/trigger_locations.h"

namespace pelorin {

class frmTriggerAction : public Form, public LocationTarget {
 public:
  // For one opening. `reloadSummary` is called after each successful save.
  frmTriggerAction(Module1& module, EventCatalogue& catalogue, const EditorRequest& request,
                   ReloadSummary reloadSummary, ShowPicker showPicker);

  const EditorState& state() const noexcept { return state_; }

  void Form_Load() override;
  void Form_Unload() override;
  void cmdOK_Click();
  void cmdApply_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();

  // False while another save runs, too.
  bool SaveTriggerAction();

  // The picker's way in; a closed editor takes nothing.
  WindowHandle locationOwner() const override { return hwnd(); }
  void setSingleLocation(const std::string& text, const std::string& tag) override;
  void addLocation(const std::string& key, const std::string& text,
                   const std::string& tag) override;

 private:
  void InitForm();
  bool readTrigger(TriggerData& data);
  // Of the panel of this class, when there is one: false when something of the trigger that would
  // be saved again could not be read.
  bool InitActionTab(std::int32_t actionId, std::int32_t deviceClass);
  void placePanels();
  bool loadPanels(std::int32_t actionId, std::int32_t deviceClass);
  void showAction(std::int32_t deviceClass);

  Module1& module_;
  EventCatalogue& catalogue_;
  EditorState state_;
  bool saving_ = false;

  TabControl SSTab1{*this, "SSTab1", {120, 120, 9960, 6840}, {"&Trigger", "&Action"}};
  TriggerLocations locations_;
  EventSelection events_;
  DeviceClasses classes_;
  ActionPanels panels_;
  Button cmdApply{*this, "cmdApply", {4080, 7080, 1410, 390}, "Apply"};
  Button cmdOK{*this, "cmdOK", {5610, 7080, 1410, 390}, "OK"};
  Button cmdCancel{*this, "cmdCancel", {7140, 7080, 1410, 390}, "Cancel"};
  Button cmdHelp{*this, "cmdHelp", {8670, 7080, 1410, 390}, "&Help"};
  TriggerActionSaver saver_;
};

}  // namespace pelorin
