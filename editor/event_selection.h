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
#include "editor/event_rows.h"
#include "editor/panel/editor_state.h"
#include "editor/panel/save_steps.h"
#include "editor/trigger_locations.h"
#include "editor/zorn_event_cache.h"

namespace pelorin {

class EventSelection {
  Parent page_;

 public:
  EventSelection(Module1& module, EventCatalogue& catalogue, const EditorState& state,
                 TriggerLocations& locations, Parent page);

  ListBox lstEventFilters{page_, "lstEventFilters", {180, 2430, 2880, 4200}};
  ListView lvwEvents{page_,
                     "lvwEvents",
                     {3240, 2430, 6540, 3660},
                     {{"Type", 1900}, {"Event No.", 1300}, {"Description", 3000}},
                     true};
  Button cmdSelectAll{page_, "cmdSelect(0)", {3240, 6240, 1710, 390}, "&Select All"};
  Button cmdDeselectAll{page_, "cmdSelect(1)", {5070, 6240, 1710, 390}, "D&eselect All"};
  Frame fraEditOverlay{page_, "fraEditOverlay", {3240, 2430, 6540, 4200}, "Edit Overlay"};
  Label lblEvent{fraEditOverlay, "lblEvent", {240, 465, 840, 255}, "Event:"};
  ComboBox cmbEvents{fraEditOverlay, "cmbEvents", {1140, 420, 5160, 330}};

  // Prepares the trigger tab for the state's mode; in edit mode it shows this location and event,
  // and is false when the event is not selected because something could not be read.
  bool InitTriggerTab(const std::string& locationText, std::int32_t eventId);
  // Puts the one event of edit mode in front of the list and its buttons.
  void ShowEditOverlay(bool visible);
  void ZornLoadEventCache() { zornEventsRead_ = zornEvents_.ZornLoadEventCache(); }

  void lstEventFilters_Click();
  // Button 0 checks every row, 1 none.
  void cmdSelect_Click(int button);

  // Lists the events of the category in row `filterRow` that are not listed yet. False when an
  // error ended it; what was listed before stays.
  bool LoadEventsByFilterType(ListView& events, ComboBox& combo, int filterRow);
  // `unloaded` is false when the operator keeps the chosen events.
  void UnLoadListEventsByFilterType(ListView& events, int filterRow, bool& unloaded);
  std::string GetFilterListPrefix(int filterRow) const;

  // In edit mode: no event is selected, and one that the list should hold could not be read.
  bool eventMissing() const noexcept { return cmbEvents.listIndex() < 0 && !eventsRead_; }
  // In list order. Error 6 when a number is too large.
  std::vector<CheckedEvent> checkedEvents() const;

 private:
  bool selectsEvent(std::int32_t eventId) const;
  bool tickCategoryOf(std::int32_t eventId);
  void filter();
  void filterForNew();
  bool keepTicked(int filterRow);
  void filterForEdit();
  bool listForEdit(int filterRow);
  bool hasToBeListed(std::size_t index, std::int32_t category) const;
  void loadMissedRecordOf(std::int32_t eventId);
  void loadType(ListView& events, ComboBox& combo, std::size_t index);
  void readRows(const EventTypeInfo& type, RecordSet& rows, std::vector<EventRow>& read,
                ComboBox& combo);
  bool keepsChosen(const ListView& events, const CategoryRows& category);
  void enableSelectButtons(const ListView& events);

  Module1& module_;
  EventCatalogue& catalogue_;
  const EditorState& state_;
  TriggerLocations& locations_;
  ZornEventCache zornEvents_;
  bool zornEventsRead_ = false;
  // Of edit mode: whether the ticked categories were read to their end; and the records of the
  // catalogue that were not tried because one before them failed.
  bool eventsRead_ = true;
  std::vector<std::size_t> missed_;
  bool filtering_ = false;
  bool clicked_ = false;
  bool m_bRetickingFilter = false;
};

}  // namespace pelorin
