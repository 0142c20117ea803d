#include "editor/cctv/cctv_save.h"

#include <utility>

#include "common/guard.h"
#include "editor/cctv/cctv_action.h"

namespace pelorin {

CctvSave::CctvSave(Module1& module, EventCatalogue& catalogue, SaveSteps& steps, Arguments values,
                   const CheckBox& returnToNormal)
    : module_(module),
      catalogue_(catalogue),
      steps_(steps),
      values_(std::move(values)),
      returnToNormal_(returnToNormal) {}

bool CctvSave::update() {
  if (!steps_.eventChosen()) return false;
  const std::string locationText = steps_.locationText();
  const std::int32_t eventId = steps_.eventId();
  const std::int32_t triggerId = steps_.state().m_TriggerID;
  steps_.planUpdate();
  module_.DBConnection()->execute("exec CCTV_Update_TA " + numberText(triggerId) + ", " +
                                  argumentsFor(locationText, eventId, action()));
  steps_.triggerWritten();
  steps_.announce("Update", triggerId, eventId, audit::updated);
  return true;
}

void CctvSave::insert() {
  steps_.insertAtEachLocation([this](const auto& locationText, const auto& events) {
    return insertAt(locationText, events);
  });
}

bool CctvSave::insertAt(const std::string& locationText, const std::vector<CheckedEvent>& events) {
  return guarded(module_, "frmTriggerAction.InsertCCTVTriggerActionForThisLocation", [&] {
    for (const CheckedEvent& event : events) {
      if (steps_.state().closed) return;
      insertRow(locationText, event.id, action());
      steps_.triggerWritten();
      steps_.announce("Add", 0, event.id, audit::added);
      if (returnToNormal_.checked() && action() == cctv_action::raiseAlarm) {
        acknowledgeOnReturn(locationText, event.id);
      }
    }
  });
}

void CctvSave::acknowledgeOnReturn(const std::string& locationText, std::int32_t eventId) {
  const std::int32_t normalEvent = catalogue_.GetRTNEvent(eventId);
  if (normalEvent > 0) insertRow(locationText, normalEvent, cctv_action::acknowledgeAlarm);
}

void CctvSave::insertRow(const std::string& locationText, std::int32_t eventId,
                         std::int64_t action) {
  module_.DBConnection()->execute("exec CCTV_Insert_TA " +
                                  argumentsFor(locationText, eventId, action));
}

std::string CctvSave::argumentsFor(const std::string& locationText, std::int32_t eventId,
                                   std::int64_t action) const {
  Arguments arguments = values_;
  arguments[cctv_argument::eventId].value = std::int64_t{eventId};
  arguments[cctv_argument::address].value = FirstWord(locationText);
  arguments[cctv_argument::action].value = action;
  arguments[cctv_argument::eventText].value = numberText(eventId);
  arguments[cctv_argument::locationText].value = locationText;
  return argumentList(arguments);
}

std::int64_t CctvSave::action() const {
  return toInt64(values_.at(cctv_argument::action).value);
}

}  // namespace pelorin
