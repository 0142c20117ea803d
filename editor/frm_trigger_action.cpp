#include "editor/frm_trigger_action.h"

#include <algorithm>
#include <utility>

#include "base/flag_while.h"
#include "catalog/trigger_store.h"
#include "common/guard.h"
#include "editor/cctv/cctv_panel.h"
#include "editor/dvr/dvr_panel.h"

namespace pelorin {

namespace {

enum Page { TriggerPage, ActionPage };

EditorState stateOf(const EditorRequest& request) {
  EditorState state;
  state.m_TriggerID = request.m_TriggerID;
  state.m_ActionDeviceClass = request.m_ActionDeviceClass.value_or(0);
  // Until the trigger has been read.
  state.halfRead = !state.addMode();
  return state;
}

// Every action panel, in tab order.
ActionPanels actionPanels(Module1& module, EventCatalogue& catalogue, Parent page) {
  ActionPanels panels;
  panels.push_back(std::make_unique<CctvPanel>(module, catalogue, page));
  panels.push_back(std::make_unique<DvrPanel>(module, page));
  return panels;
}

}  // namespace

frmTriggerAction::frmTriggerAction(Module1& module, EventCatalogue& catalogue,
                                   const EditorRequest& request, ReloadSummary reloadSummary,
                                   ShowPicker showPicker)
    : Form("frmTriggerAction", "Trigger Action", {10200, 7590}),
      module_(module),
      catalogue_(catalogue),
      state_(stateOf(request)),
      locations_(module, SSTab1.page(TriggerPage), *this, std::move(showPicker)),
      events_(module, catalogue, state_, locations_, SSTab1.page(TriggerPage)),
      classes_(module, SSTab1.page(ActionPage), panels_),
      panels_(actionPanels(module, catalogue, SSTab1.page(ActionPage))),
      saver_(module, state_, {locations_, events_, classes_, panels_}, std::move(reloadSummary)) {
  setDefaultButton(&cmdOK);
  setCancelButton(&cmdCancel);
  cmdApply.onClick = [this] { cmdApply_Click(); };
  cmdOK.onClick = [this] { cmdOK_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
  cmdHelp.onClick = [this] { cmdHelp_Click(); };
}

void frmTriggerAction::Form_Load() {
  guarded(module_, "frmTriggerAction.Form_Load", [this] {
    const HourglassPointer hourglass(module_.screen());
    state_.m_bVn8HardwareSupport = module_.NTConnection()->ZornIsVn8HardwareSupportEnabled();
    events_.ZornLoadEventCache();
    InitForm();
  });
}

void frmTriggerAction::InitForm() {
  guarded(module_, "frmTriggerAction.InitForm", [this] {
    TriggerData data;
    classes_.cmbActionDeviceClass.setEnabled(state_.addMode());
    setCaption(state_.addMode() ? "Add Trigger Action" : "Edit Trigger Action");
    const bool triggerRead = state_.addMode() || readTrigger(data);
    const bool eventRead = events_.InitTriggerTab(data.address, data.eventId);
    const bool actionRead = InitActionTab(data.actionId, data.deviceClassId);
    // A trigger that is not there any more, or of a foreign class, is not saved anyway.
    const bool saved = panelOf(panels_, data.deviceClassId) != nullptr;
    const bool whole = triggerRead && (!saved || (eventRead && actionRead));
    state_.halfRead = !state_.addMode() && !whole;
  });
}

bool frmTriggerAction::readTrigger(TriggerData& data) {
  ActionPanel* panel = panelOf(panels_, state_.m_ActionDeviceClass);
  const bool read = panel == nullptr ? GetTriggerData(module_, state_.m_TriggerID, data)
                                     : panel->readTrigger(state_.m_TriggerID, data);
  state_.m_ActionID = data.actionId;
  return read;
}

bool frmTriggerAction::InitActionTab(std::int32_t actionId, std::int32_t deviceClass) {
  bool whole = false;
  guarded(module_, "frmTriggerAction.InitActionTab", [&] {
    placePanels();
    for (const auto& panel : panels_) panel->prepare();
    const bool classesRead = classes_.LoadDeviceClassCombo(classes_.cmbActionDeviceClass);
    const bool panelRead = loadPanels(actionId, deviceClass);
    showAction(deviceClass);
    whole = panelRead && (classesRead || classes_.selectedClass() == deviceClass);
  });
  return whole;
}

// All stand where the first one does.
void frmTriggerAction::placePanels() {
  const Place corner = panels_.front()->frame().place();
  for (const auto& panel : panels_) {
    const Place& own = panel->frame().place();
    panel->frame().setPlace({corner.left, corner.top, own.width, own.height});
  }
}

// All are loaded with the same ID, the last one first; only the one of the trigger's own class has
// to be whole.
bool frmTriggerAction::loadPanels(std::int32_t actionId, std::int32_t deviceClass) {
  bool whole = true;
  std::for_each(panels_.rbegin(), panels_.rend(), [&](const auto& panel) {
    const bool read = panel->load(actionId);
    if (panel->deviceClass() == deviceClass) whole = read;
  });
  return whole;
}

void frmTriggerAction::showAction(std::int32_t deviceClass) {
  if (state_.addMode()) {
    classes_.DisplayDeviceAction(classes_.selectedClass());
    return;
  }
  // A class that the combo does not offer leaves nothing selected, and nothing to save.
  classes_.cmbActionDeviceClass.setListIndex(-1);
  classes_.DisplayDeviceAction(deviceClass);
}

void frmTriggerAction::Form_Unload() {
  state_.closed = true;
  guarded(module_, "frmTriggerAction.Form_Unload",
          [this] { catalogue_.ClearAllEventsLoaded(events_.lstEventFilters); });
}

void frmTriggerAction::cmdOK_Click() {
  guarded(module_, "frmTriggerAction.cmdOK_Click", [this] {
    const HourglassPointer hourglass(module_.screen());
    if (SaveTriggerAction()) unload();
  });
}

void frmTriggerAction::cmdApply_Click() {
  guarded(module_, "frmTriggerAction.cmdApply_Click", [this] { SaveTriggerAction(); });
}

void frmTriggerAction::cmdCancel_Click() {
  guarded(module_, "frmTriggerAction.cmdCancel_Click", [this] { unload(); });
}

void frmTriggerAction::cmdHelp_Click() {
  guarded(module_, "frmTriggerAction.cmdHelp_Click", [this] {
    constexpr std::int16_t triggerTopic = 218;
    constexpr std::int16_t actionTopic = 53;
    module_.NTConnection()->ShowHelp(SSTab1.tab() == TriggerPage ? triggerTopic : actionTopic);
  });
}

bool frmTriggerAction::SaveTriggerAction() {
  if (saving_) return false;
  const FlagWhile saving(saving_);
  return saver_.SaveTriggerAction();
}

void frmTriggerAction::setSingleLocation(const std::string& text, const std::string& tag) {
  if (!isOpen()) return;
  locations_.txtLocation.setText(text);
  locations_.txtLocation.setTag(tag);
}

void frmTriggerAction::addLocation(const std::string& key, const std::string& text,
                                   const std::string& tag) {
  if (!isOpen()) return;
  ListItem row;
  row.key = key;
  row.text = text;
  row.tag = tag;
  locations_.lvwLocation.add(0, std::move(row));
}

}  // namespace pelorin
