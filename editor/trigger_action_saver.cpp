#include "editor/trigger_action_saver.h"

#include <utility>

#include "common/guard.h"
#include "editor/action_values.h"

namespace pelorin {

namespace {

namespace audit {
constexpr std::int16_t added = 1184;
constexpr std::int16_t updated = 1185;
}  // namespace audit

constexpr std::int32_t addedText = 2835;

// Texts go between quotes exactly as they are; a quote inside them breaks the statement.
std::string quoted(const std::string& text) {
  return "'" + text + "'";
}

// The arguments that adding and updating share; the event goes in as a number and as a text.
std::string cctvArguments(const CctvValues& values, std::int32_t eventId,
                          const std::string& address, const std::string& locationText) {
  std::string sql = numberText(values.switcher);
  sql += ", " + numberText(std::int32_t{values.monitor});
  sql += ", " + numberText(std::int32_t{values.camera});
  sql += ", " + numberText(std::int32_t{values.preset});
  sql += ", " + numberText(eventId);
  sql += ", " + quoted(address);
  sql += ", " + numberText(std::int32_t{values.action});
  sql += ", " + quoted(numberText(eventId));
  sql += ", " + quoted(locationText);
  sql += ", " + numberText(std::int32_t{values.alarm});
  sql += values.openViewer ? ", True" : ", False";
  return sql;
}

// An inner procedure that failed has told so; the operation ends with it.
void require(bool done) {
  if (!done) throw AlreadyReported();
}

}  // namespace

TriggerActionSaver::TriggerActionSaver(Module1& module, EventCatalogue& catalogue,
                                       const EditorState& state, EditorPanels panels,
                                       ReloadSummary reloadSummary)
    : module_(module),
      catalogue_(catalogue),
      state_(state),
      panels_(panels),
      reloadSummary_(std::move(reloadSummary)),
      dvrActions_(module) {}

bool TriggerActionSaver::SaveTriggerAction() {
  bool saved = false;
  progress_ = {};
  guarded(module_, "frmTriggerAction.SaveTriggerAction", [&] {
    const std::int32_t deviceClass = panels_.classes.selectedClass();
    if (!readWhole(deviceClass)) return;
    if (deviceClass == device_class::dvr) saved = SaveDVRTriggerAction();
    if (deviceClass == device_class::cctv) saved = SaveCCTVTriggerAction();
    if (state_.closed && progress_.planned > 0) endWithoutWindows();
    // Failing from here on leaves the rows standing: a second save would write them twice.
    if (saved) reloadSummary_();
  });
  return saved;
}

bool TriggerActionSaver::readWhole(std::int32_t deviceClass) {
  const bool updates = !state_.addMode() && deviceClass != 0;
  if (!state_.halfRead && !(updates && panels_.events.eventMissing())) return true;
  module_.inform("Cannot save trigger. It could not be read completely.");
  return false;
}

void TriggerActionSaver::plan(std::size_t locations, const Events& events) {
  progress_.planned = locations * events.size();
}

// Nobody sees any more what became of it.
void TriggerActionSaver::endWithoutWindows() {
  module_.LogError("frmTriggerAction.SaveTriggerAction: The editor was closed during the save; " +
                   std::to_string(progress_.written) + " of " + std::to_string(progress_.planned) +
                   " trigger actions were written.");
}

bool TriggerActionSaver::SaveCCTVTriggerAction() {
  return guardedOr(module_, "frmTriggerAction.SaveCCTVTriggerAction", false,
                   [this] { return saveCctv(); });
}

bool TriggerActionSaver::saveCctv() {
  if (!panels_.locations.ValidateTriggerLocation()) return false;
  if (panels_.cctv.cmbCCTVSwitchers.listIndex() < 0) {
    module_.inform("Cannot save trigger. There are no CCTV units defined for this trigger");
    return false;
  }
  const CctvValues values = readValues(panels_.cctv);
  if (state_.m_TriggerID != 0) return updateCctv(values);
  insertCctv(values);
  return true;
}

bool TriggerActionSaver::updateCctv(const CctvValues& values) {
  if (!eventChosen()) return false;
  const std::string locationText = panels_.locations.txtLocation.text();
  const std::int32_t eventId = panels_.events.cmbEvents.selectedData();
  progress_.planned = 1;
  module_.DBConnection()->execute(
      "exec CCTV_Update_TA " + numberText(state_.m_TriggerID) + ", " +
      cctvArguments(values, eventId, FirstWord(locationText), locationText));
  ++progress_.written;
  announce("Update", state_.m_TriggerID, eventId, audit::updated);
  return true;
}

void TriggerActionSaver::insertCctv(const CctvValues& values) {
  const Events events = panels_.events.checkedEvents();
  const std::vector<std::string> locations = panels_.locations.listed();
  plan(locations.size(), events);
  const bool returnToNormal = panels_.cctv.chkCCTVAutoRTNTriggers.checked();
  for (const std::string& locationText : locations) {
    require(InsertCCTVTriggerActionForThisLocation(FirstWord(locationText), locationText, values,
                                                   returnToNormal, events));
  }
}

bool TriggerActionSaver::InsertCCTVTriggerActionForThisLocation(const std::string& address,
                                                                const std::string& locationText,
                                                                const CctvValues& values,
                                                                bool /*returnToNormal*/,
                                                                const Events& events) {
  return guarded(module_, "frmTriggerAction.InsertCCTVTriggerActionForThisLocation", [&] {
    for (const CheckedEvent& event : events) {
      if (state_.closed) return;
      insertCctvRow(address, locationText, values, event.id);
      ++progress_.written;
      announce("Add", 0, event.id, audit::added);
      const bool returnToNormal = panels_.cctv.chkCCTVAutoRTNTriggers.checked();
      if (!returnToNormal || values.action != cctv_action::raiseAlarm) continue;
      const std::int32_t normalEvent = catalogue_.GetRTNEvent(event.id);
      if (normalEvent <= 0) continue;
      CctvValues acknowledging = values;
      acknowledging.action = cctv_action::acknowledgeAlarm;
      insertCctvRow(address, locationText, acknowledging, normalEvent);
    }
  });
}

void TriggerActionSaver::insertCctvRow(const std::string& address, const std::string& locationText,
                                       const CctvValues& values, std::int32_t eventId) {
  module_.DBConnection()->execute("exec CCTV_Insert_TA " +
                                  cctvArguments(values, eventId, address, locationText));
}

bool TriggerActionSaver::SaveDVRTriggerAction() {
  return guardedOr(module_, "frmTriggerAction.SaveDVRTriggerAction", false,
                   [this] { return saveDvr(); });
}

bool TriggerActionSaver::saveDvr() {
  if (panels_.dvr.cmbDVRUnit.listIndex() < 0) {
    module_.inform("Cannot save trigger. There are no DVR units defined for this trigger");
    return false;
  }
  const DvrValues values = readValues(panels_.dvr);
  if (values.alarmDuration == 0 && panels_.dvr.vendorType() != DvrPanel::vendorWithoutDuration) {
    module_.inform("Required field missing. Must specify Alarm duration.");
    return false;
  }
  if (!panels_.locations.ValidateTriggerLocation()) return false;
  if (!state_.addMode()) return updateDvr(values);
  insertDvr(values);
  return true;
}

// The action row is written before the event is looked at; that order is kept.
bool TriggerActionSaver::updateDvr(const DvrValues& values) {
  progress_.planned = 1;
  require(dvrActions_.UpdateDVRAction(state_.m_ActionID, values));
  const std::string address = FirstWord(panels_.locations.txtLocation.text());
  if (!eventChosen()) return false;
  const std::int32_t eventId = panels_.events.cmbEvents.selectedData();
  module_.DBConnection()->execute("pav_UpdateDeviceTrigger " + numberText(state_.m_TriggerID) +
                                  ", " + quoted(address) + ", " + numberText(eventId) + ", " +
                                  numberText(state_.m_ActionID) + ", " +
                                  numberText(panels_.classes.selectedClass()));
  ++progress_.written;
  announce("Update", 0, eventId, audit::updated);
  return true;
}

void TriggerActionSaver::insertDvr(const DvrValues& values) {
  const Events events = panels_.events.checkedEvents();
  const std::vector<std::string> locations = panels_.locations.listed();
  plan(locations.size(), events);
  const std::int32_t deviceClass = panels_.classes.selectedClass();
  for (const std::string& locationText : locations) {
    require(GenerateTriggerActonForEventsAtThisLocation(locationText, values, deviceClass, events));
  }
}

bool TriggerActionSaver::GenerateTriggerActonForEventsAtThisLocation(
    const std::string& locationText, const DvrValues& values, std::int32_t deviceClass,
    const Events& events) {
  return guarded(module_, "frmTriggerAction.GenerateTriggerActonForEventsAtThisLocation", [&] {
    const std::string address = FirstWord(locationText);
    for (const CheckedEvent& event : events) {
      if (state_.closed) return;
      std::int32_t newActionId = 0;
      require(dvrActions_.AddDVRAction(values, newActionId));
      module_.DBConnection()->execute("pav_AddDeviceTrigger " + quoted(address) + ", " +
                                      event.text + ", " + numberText(newActionId) + ", " +
                                      numberText(deviceClass));
      ++progress_.written;
      announce(module_.GRS(addedText), newActionId, event.id, audit::added);
    }
  });
}

bool TriggerActionSaver::eventChosen() {
  if (panels_.events.cmbEvents.listIndex() >= 0) return true;
  module_.inform("Required field missing. Must specify event.");
  return false;
}

void TriggerActionSaver::announce(const std::string& action, std::int32_t id, std::int32_t eventId,
                                  std::int16_t code) {
  module_.NTConnection()->LogEvent(action, "TriggerAction", id,
                                   "Trigger Event " + numberText(eventId), code);
}

}  // namespace pelorin
