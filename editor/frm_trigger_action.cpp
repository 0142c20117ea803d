#include "editor/frm_trigger_action.h"

#include <utility>

#include "catalog/trigger_store.h"
#include "common/guard.h"
#include "controls/flag_while.h"

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

}  // namespace

frmTriggerAction::frmTriggerAction(Module1& module, EventCatalogue& catalogue,
                                   const EditorRequest& request, ReloadSummary reloadSummary,
                                   ShowPicker showPicker)
    : Form("frmTriggerAction", "Trigger Action", {10200, 7590}),
      module_(module),
      catalogue_(catalogue),
      state_(stateOf(request)),
      SSTab1("SSTab1", {120, 120, 9960, 6840}, {"&Trigger", "&Action"}),
      locations_(module, SSTab1, TriggerPage, *this, std::move(showPicker)),
      events_(module, catalogue, state_, locations_, SSTab1, TriggerPage),
      cctv_(module, SSTab1, ActionPage),
      dvr_(module, SSTab1, ActionPage),
      classes_(module, SSTab1, ActionPage, cctv_.fraCCTVAction, dvr_.fraDVRAction),
      cmdApply("cmdApply", {4080, 7080, 1410, 390}, "Apply"),
      cmdOK("cmdOK", {5610, 7080, 1410, 390}, "OK"),
      cmdCancel("cmdCancel", {7140, 7080, 1410, 390}, "Cancel"),
      cmdHelp("cmdHelp", {8670, 7080, 1410, 390}, "&Help"),
      saver_(module, catalogue, state_, {locations_, events_, classes_, cctv_, dvr_},
             std::move(reloadSummary)) {
  addControls({&SSTab1});
  for (const std::vector<Control*>& panel :
       {locations_.controls(), events_.controls(), classes_.controls(), cctv_.controls(),
        dvr_.controls()}) {
    for (Control* control : panel) addControls({control});
  }
  addControls({&cmdApply, &cmdOK, &cmdCancel, &cmdHelp});
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
    const bool saved =
        data.deviceClassId == device_class::cctv || data.deviceClassId == device_class::dvr;
    const bool whole = triggerRead && (!saved || (eventRead && actionRead));
    state_.halfRead = !state_.addMode() && !whole;
  });
}

bool frmTriggerAction::readTrigger(TriggerData& data) {
  const bool read = state_.m_ActionDeviceClass == device_class::cctv
                        ? GetCCTVTriggerData(module_, state_.m_TriggerID, data)
                        : GetTriggerData(module_, state_.m_TriggerID, data);
  state_.m_ActionID = data.actionId;
  return read;
}

// Both panels are loaded with the same ID; only the one of the trigger's own class has to be whole.
bool frmTriggerAction::InitActionTab(std::int32_t actionId, std::int32_t deviceClass) {
  bool whole = false;
  guarded(module_, "frmTriggerAction.InitActionTab", [&] {
    const Place& cctvPlace = cctv_.fraCCTVAction.place();
    Place dvrPlace = dvr_.fraDVRAction.place();
    dvrPlace.left = cctvPlace.left;
    dvrPlace.top = cctvPlace.top;
    dvr_.fraDVRAction.setPlace(dvrPlace);
    cctv_.layOut();
    const bool classesRead = classes_.LoadDeviceClassCombo(classes_.cmbActionDeviceClass);
    dvr_.InitRecordRateTable();
    const bool dvrRead = dvr_.LoadDVRAction(actionId);
    const bool cctvRead = cctv_.LoadCCTVAction(actionId);
    showAction(deviceClass);
    const bool classStands = classesRead || classes_.selectedClass() == deviceClass;
    whole = classStands && (deviceClass == device_class::cctv ? cctvRead : dvrRead);
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
