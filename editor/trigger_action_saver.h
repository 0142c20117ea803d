// Turns what the panels hold into rows: in add mode one per location and checked event, in edit
// mode the one trigger. Nothing is transactional: what was written before a failure stays.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "catalog/event_catalogue.h"
#include "common/form_links.h"
#include "common/module1.h"
#include "editor/cctv_panel.h"
#include "editor/device_classes.h"
#include "editor/dvr_action_store.h"
#include "editor/dvr_panel.h"
#include "editor/editor_state.h"
#include "editor/event_selection.h"
#include "editor/trigger_locations.h"

namespace pelorin {

struct EditorPanels {
  TriggerLocations& locations;
  EventSelection& events;
  DeviceClasses& classes;
  CctvPanel& cctv;
  DvrPanel& dvr;
};

class TriggerActionSaver {
 public:
  TriggerActionSaver(Module1& module, EventCatalogue& catalogue, const EditorState& state,
                     EditorPanels panels, ReloadSummary reloadSummary);

  // True when the rows stand; the summary has then been asked to reload. False after a message or a
  // report, and without either for a class that cannot be saved. When the editor is closed
  // meanwhile it ends after the trigger in hand; the log then says how far it came.
  bool SaveTriggerAction();
  bool SaveCCTVTriggerAction();
  bool SaveDVRTriggerAction();

 private:
  using Events = std::vector<CheckedEvent>;

  struct Progress {
    std::size_t planned = 0;
    std::size_t written = 0;
  };

  bool readWhole(std::int32_t deviceClass);
  // Plans a trigger action per location and event.
  void plan(std::size_t locations, const Events& events);
  void endWithoutWindows();

  bool saveCctv();
  bool updateCctv(const CctvValues& values);
  void insertCctv(const CctvValues& values);
  // The last argument is not looked at: the check box decides, event by event.
  bool InsertCCTVTriggerActionForThisLocation(const std::string& address,
                                              const std::string& locationText,
                                              const CctvValues& values, bool returnToNormal,
                                              const Events& events);
  void insertCctvRow(const std::string& address, const std::string& locationText,
                     const CctvValues& values, std::int32_t eventId);

  bool saveDvr();
  bool updateDvr(const DvrValues& values);
  void insertDvr(const DvrValues& values);
  bool GenerateTriggerActonForEventsAtThisLocation(const std::string& locationText,
                                                   const DvrValues& values,
                                                   std::int32_t deviceClass, const Events& events);

  bool eventChosen();
  void announce(const std::string& action, std::int32_t id, std::int32_t eventId,
                std::int16_t code);

  Module1& module_;
  EventCatalogue& catalogue_;
  const EditorState& state_;
  EditorPanels panels_;
  ReloadSummary reloadSummary_;
  DvrActionStore dvrActions_;
  Progress progress_;
};

}  // namespace pelorin
