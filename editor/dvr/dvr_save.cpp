#include "editor/dvr/dvr_save.h"

#include <utility>

#include "common/guard.h"

namespace pelorin {

namespace {

constexpr std::int32_t addedText = 2835;

}  // namespace

DvrSave::DvrSave(Module1& module, SaveSteps& steps, Arguments values)
    : module_(module), steps_(steps), actions_(module), values_(std::move(values)) {}

// The action row is written before the event is looked at; that order is kept.
bool DvrSave::update() {
  steps_.planUpdate();
  const EditorState& state = steps_.state();
  require(actions_.UpdateDVRAction(state.m_ActionID, values_));
  const std::string address = FirstWord(steps_.locationText());
  if (!steps_.eventChosen()) return false;
  const std::int32_t eventId = steps_.eventId();
  module_.DBConnection()->execute("pav_UpdateDeviceTrigger " + numberText(state.m_TriggerID) +
                                  ", " + quoted(address) + ", " + numberText(eventId) + ", " +
                                  numberText(state.m_ActionID) + ", " +
                                  numberText(std::int32_t{device_class::dvr}));
  steps_.triggerWritten();
  steps_.announce("Update", 0, eventId, audit::updated);
  return true;
}

void DvrSave::insert() {
  steps_.insertAtEachLocation([this](const auto& locationText, const auto& events) {
    return insertAt(locationText, events);
  });
}

bool DvrSave::insertAt(const std::string& locationText, const std::vector<CheckedEvent>& events) {
  return guarded(module_, "frmTriggerAction.GenerateTriggerActonForEventsAtThisLocation", [&] {
    const std::string address = FirstWord(locationText);
    for (const CheckedEvent& event : events) {
      if (steps_.state().closed) return;
      std::int32_t newActionId = 0;
      require(actions_.AddDVRAction(values_, newActionId));
      module_.DBConnection()->execute("pav_AddDeviceTrigger " + quoted(address) + ", " +
                                      event.text + ", " + numberText(newActionId) + ", " +
                                      numberText(std::int32_t{device_class::dvr}));
      steps_.triggerWritten();
      steps_.announce(module_.GRS(addedText), newActionId, event.id, audit::added);
    }
  });
}

}  // namespace pelorin
