// Which events fire the trigger: filter categories to tick, the list of their events with check
// marks (add mode), and the one event of an edited trigger.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "catalog/event_catalogue.h"
#include "common/module1.h"
#include "controls/item_lists.h"
#include "controls/list_view.h"
#include "controls/simple_controls.h"
#include "controls/tab_control.h"
#include "editor/editor_state.h"
#include "editor/event_rows.h"
#include "editor/trigger_locations.h"
#include "editor/zorn_event_cache.h"

namespace pelorin {

struct CheckedEvent {
  std::string text;  // as listed, five digits
  std::int32_t id;
};

class EventSelection {
 public:
  EventSelection(Module1& module, EventCatalogue& catalogue, const EditorState& state,
                 TriggerLocations& locations, TabControl& tabs, int page);

  ListBox lstEventFilters;
  ListView lvwEvents;
  Button cmdSelectAll;    // cmdSelect(0)
  Button cmdDeselectAll;  // cmdSelect(1)
  Frame fraEditOverlay;
  Label lblEvent;
  ComboBox cmbEvents;

  std::vector<Control*> controls();

  // Prepares the trigger tab for the state's mode; in edit mode it shows this location and event.
  void InitTriggerTab(const std::string& locationText, std::int32_t eventId);
  // Puts the one event of edit mode in the place of the list.
  void ShowEditOverlay(bool visible);
  void ZornLoadEventCache() { zornEvents_.ZornLoadEventCache(); }

  void lstEventFilters_Click();
  // Button 0 checks every row, 1 none.
  void cmdSelect_Click(int button);

  // Lists the events of the category in row `filterRow` that are not listed yet.
  void LoadEventsByFilterType(ListView& events, ComboBox& combo, int filterRow);
  // `unloaded` is false when the operator keeps the chosen events.
  void UnLoadListEventsByFilterType(ListView& events, int filterRow, bool& unloaded);
  std::string GetFilterListPrefix(int filterRow) const;

  // In list order. Error 6 when a number is too large.
  std::vector<CheckedEvent> checkedEvents() const;

 private:
  struct Category;

  void tickCategoryOf(std::int32_t eventId);
  void filterForNew();
  void filterForEdit();
  void loadType(ListView& events, ComboBox& combo, std::size_t index);
  void listRows(const EventTypeInfo& type, RecordSet& rows, EventRowMerge& merge, ComboBox& combo);
  bool keepsChosen(const ListView& events, const Category& category);
  void enableSelectButtons(const ListView& events);

  Module1& module_;
  EventCatalogue& catalogue_;
  const EditorState& state_;
  TriggerLocations& locations_;
  ZornEventCache zornEvents_;
  bool m_bRetickingFilter = false;
};

}  // namespace pelorin
