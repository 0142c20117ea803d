#include "editor/trigger_action_saver.h"

#include <utility>
#include <vector>

#include "common/guard.h"

namespace pelorin {

TriggerActionSaver::TriggerActionSaver(Module1& module, const EditorState& state, EditorParts parts,
                                       ReloadSummary reloadSummary)
    : module_(module), state_(state), parts_(parts), reloadSummary_(std::move(reloadSummary)) {}

bool TriggerActionSaver::SaveTriggerAction() {
  bool saved = false;
  progress_ = {};
  guarded(module_, "frmTriggerAction.SaveTriggerAction", [&] {
    const std::int32_t deviceClass = parts_.classes.selectedClass();
    if (!readWhole(deviceClass)) return;
    ActionPanel* panel = panelOf(parts_.panels, deviceClass);
    if (panel != nullptr) saved = panel->save(*this);
    if (state_.closed && progress_.planned > 0) endWithoutWindows();
    // Failing from here on leaves the rows standing: a second save would write them twice.
    if (saved) reloadSummary_();
  });
  return saved;
}

bool TriggerActionSaver::readWhole(std::int32_t deviceClass) {
  const bool updates = !state_.addMode() && deviceClass != 0;
  if (!state_.halfRead && !(updates && parts_.events.eventMissing())) return true;
  module_.inform("Cannot save trigger. It could not be read completely.");
  return false;
}

// Nobody sees any more what became of it.
void TriggerActionSaver::endWithoutWindows() {
  module_.LogError("frmTriggerAction.SaveTriggerAction: The editor was closed during the save; " +
                   std::to_string(progress_.written) + " of " + std::to_string(progress_.planned) +
                   " trigger actions were written.");
}

bool TriggerActionSaver::eventChosen() {
  if (parts_.events.cmbEvents.listIndex() >= 0) return true;
  module_.inform("Required field missing. Must specify event.");
  return false;
}

void TriggerActionSaver::insertAtEachLocation(const InsertAtLocation& insert) {
  const std::vector<CheckedEvent> events = parts_.events.checkedEvents();
  const std::vector<std::string> locations = parts_.locations.listed();
  progress_.planned = locations.size() * events.size();
  for (const std::string& locationText : locations) require(insert(locationText, events));
}

void TriggerActionSaver::announce(const std::string& action, std::int32_t id, std::int32_t eventId,
                                  std::int16_t code) {
  module_.NTConnection()->LogEvent(action, "TriggerAction", id,
                                   "Trigger Event " + numberText(eventId), code);
}

}  // namespace pelorin
