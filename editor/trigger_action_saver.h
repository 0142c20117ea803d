// Turns what the editor holds into rows: in add mode one per location and checked event, in edit
// mode the one trigger. Nothing is transactional: what was written before a failure stays.
#pragma once

#include <cstdint>
#include <string>

#include "common/form_links.h"
#include "common/module1.h"
#include "editor/device_classes.h"
#include "editor/event_selection.h"
#include "editor/panel/action_panel.h"
#include "editor/panel/editor_state.h"
#include "editor/panel/save_steps.h"
#include "editor/trigger_locations.h"

namespace pelorin {

// What a save is made from.
struct EditorParts {
  TriggerLocations& locations;
  EventSelection& events;
  DeviceClasses& classes;
  const ActionPanels& panels;
};

class TriggerActionSaver final : private SaveSteps {
 public:
  TriggerActionSaver(Module1& module, const EditorState& state, EditorParts parts,
                     ReloadSummary reloadSummary);

  // True when the rows stand; the summary has then been asked to reload. False after a message or a
  // report, and without either for a class that cannot be saved. When the editor is closed
  // meanwhile it ends after the trigger in hand; the log then says how far it came.
  bool SaveTriggerAction();

 private:
  struct Progress {
    std::size_t planned = 0;
    std::size_t written = 0;
  };

  bool readWhole(std::int32_t deviceClass);
  void endWithoutWindows();

  const EditorState& state() const noexcept override { return state_; }
  bool ValidateTriggerLocation() override { return parts_.locations.ValidateTriggerLocation(); }
  bool eventChosen() override;
  void planUpdate() override { progress_.planned = 1; }
  std::string locationText() const override { return parts_.locations.txtLocation.text(); }
  std::int32_t eventId() const override { return parts_.events.cmbEvents.selectedData(); }
  void insertAtEachLocation(const InsertAtLocation& insert) override;
  void triggerWritten() noexcept override { ++progress_.written; }
  void announce(const std::string& action, std::int32_t id, std::int32_t eventId,
                std::int16_t code) override;

  Module1& module_;
  const EditorState& state_;
  EditorParts parts_;
  ReloadSummary reloadSummary_;
  Progress progress_;
};

}  // namespace pelorin
