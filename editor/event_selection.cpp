#include "editor/event_selection.h"

#include <optional>
#include <utility>

#include "base/current_error.h"
#include "base/flag_while.h"
#include "catalog/zorn_family.h"
#include "common/combo_helpers.h"
#include "common/guard.h"
#include "editor/event_query.h"

namespace pelorin {

namespace {

constexpr const char* loadName = "Error: LoadEventsByFilterType(): ";

ListItem eventRow(const EventTypeInfo& type, const ListedEvent& event) {
  ListItem row;
  row.text = type.FilterType;
  row.subItems = {event.number, event.text};
  return row;
}

}  // namespace

EventSelection::EventSelection(Module1& module, EventCatalogue& catalogue, const EditorState& state,
                               TriggerLocations& locations, Parent page)
    : page_(page),
      module_(module),
      catalogue_(catalogue),
      state_(state),
      locations_(locations),
      zornEvents_(module) {
  fraEditOverlay.setVisible(false);
  enableSelectButtons(lvwEvents);
  lstEventFilters.onClick = [this] { lstEventFilters_Click(); };
  cmdSelectAll.onClick = [this] { cmdSelect_Click(0); };
  cmdDeselectAll.onClick = [this] { cmdSelect_Click(1); };
}

bool EventSelection::InitTriggerTab(const std::string& locationText, std::int32_t eventId) {
  bool whole = false;
  guarded(module_, "frmTriggerAction.InitTriggerTab", [&] {
    if (!catalogue_.loaded()) catalogue_.InitEventTypeInfoArray();
    const bool filtersRead = catalogue_.LoadFilterList(lstEventFilters);
    cmdSelectAll.setEnabled(false);
    cmdDeselectAll.setEnabled(false);
    locations_.showSingle(!state_.addMode());
    ShowEditOverlay(!state_.addMode());
    if (state_.addMode()) return;
    const bool categoryRead = tickCategoryOf(eventId);
    SelectComboItemByData(cmbEvents, eventId);
    if (!selectsEvent(eventId)) loadMissedRecordOf(eventId);
    locations_.txtLocation.setText(locationText);
    const bool listRead = catalogue_.loaded() && filtersRead && categoryRead && eventsRead_;
    whole = listRead || selectsEvent(eventId);
  });
  return whole;
}

bool EventSelection::selectsEvent(std::int32_t eventId) const {
  return cmbEvents.listIndex() >= 0 && cmbEvents.selectedData() == eventId;
}

bool EventSelection::tickCategoryOf(std::int32_t eventId) {
  const std::optional<std::int16_t> category = catalogue_.findFilter(eventId);
  for (int row = 0; row < lstEventFilters.listCount(); ++row) {
    if (lstEventFilters.row(row).itemData != category.value_or(0)) continue;
    lstEventFilters.setSelected(row, true);
    break;
  }
  return category.has_value();
}

void EventSelection::ShowEditOverlay(bool visible) {
  Place place = fraEditOverlay.place();
  place.left = lvwEvents.place().left;
  place.top = lvwEvents.place().top;
  fraEditOverlay.setPlace(place);
  fraEditOverlay.setVisible(visible);
  lvwEvents.setCovered(visible);
  cmdSelectAll.setCovered(visible);
  cmdDeselectAll.setCovered(visible);
}

// A host that pumps messages while a category is read lets another click through: it is answered
// when the one before it has been, so that no event is listed by both.
void EventSelection::lstEventFilters_Click() {
  if (m_bRetickingFilter) return;
  clicked_ = true;
  if (filtering_) return;
  const FlagWhile filtering(filtering_);
  while (std::exchange(clicked_, false) && !state_.closed) filter();
}

void EventSelection::filter() {
  guarded(module_, "frmTriggerAction.lstEventFilters_Click", [this] {
    const HourglassPointer hourglass(module_.screen());
    if (state_.addMode()) {
      filterForNew();
    } else {
      filterForEdit();
    }
  });
  enableSelectButtons(lvwEvents);
}

void EventSelection::filterForNew() {
  for (int row = 0; row < lstEventFilters.listCount() && !state_.closed; ++row) {
    if (lstEventFilters.selected(row)) {
      LoadEventsByFilterType(lvwEvents, cmbEvents, row);
      zornEvents_.ZornDisplayFilteredEvents(lvwEvents, cmbEvents,
                                            lstEventFilters.row(row).itemData);
    } else if (keepTicked(row)) {
      const FlagWhile reticking(m_bRetickingFilter);
      lstEventFilters.setSelected(row, true);
    }
  }
}

bool EventSelection::keepTicked(int filterRow) {
  bool unloaded = false;
  UnLoadListEventsByFilterType(lvwEvents, filterRow, unloaded);
  return !unloaded;
}

void EventSelection::filterForEdit() {
  const std::int32_t chosen = cmbEvents.listIndex() < 0 ? 0 : cmbEvents.selectedData();
  cmbEvents.clear();
  catalogue_.ClearAllEventsLoaded(lstEventFilters);
  eventsRead_ = true;
  missed_.clear();
  for (int row = 0; row < lstEventFilters.listCount() && !state_.closed; ++row) {
    if (lstEventFilters.selected(row) && !listForEdit(row)) eventsRead_ = false;
  }
  if (chosen <= 0) return;
  SelectComboItemByData(cmbEvents, chosen);
  if (!selectsEvent(chosen)) loadMissedRecordOf(chosen);
}

bool EventSelection::listForEdit(int filterRow) {
  const std::int32_t category = lstEventFilters.row(filterRow).itemData;
  if (category <= lastOrdinaryCategory) {
    return LoadEventsByFilterType(lvwEvents, cmbEvents, filterRow);
  }
  zornEvents_.ZornDisplayFilteredEvents(lvwEvents, cmbEvents, category);
  return zornEventsRead_;
}

bool EventSelection::LoadEventsByFilterType(ListView& events, ComboBox& combo, int filterRow) {
  std::int32_t category = 0;
  std::size_t index = 0;
  const bool read = guarded(module_, loadName, [&] {
    category = lstEventFilters.row(filterRow).itemData;
    if (state_.addMode() && isZornCategory(category)) return enableSelectButtons(events);
    for (; index < catalogue_.types().size(); ++index) {
      if (hasToBeListed(index, category)) loadType(events, combo, index);
    }
    enableSelectButtons(events);
  });
  while (!read && ++index < catalogue_.types().size()) {
    if (hasToBeListed(index, category)) missed_.push_back(index);
  }
  return read;
}

bool EventSelection::hasToBeListed(std::size_t index, std::int32_t category) const {
  const EventTypeInfo& type = std::as_const(catalogue_).types()[index];
  return !type.TableName.empty() && type.FilterIndex == category && !type.EventsLoaded;
}

// A table that cannot be read ends the listing of its category; the edited event may be in another
// one of it.
void EventSelection::loadMissedRecordOf(std::int32_t eventId) {
  guarded(module_, loadName, [&] {
    const std::vector<std::size_t> missed = std::exchange(missed_, {});
    for (const std::size_t index : missed) {
      if (index >= catalogue_.types().size()) return;
      const EventTypeInfo& type = catalogue_.types()[index];
      if (eventId < type.MinEventID || eventId > type.MaxEventID) continue;
      loadType(lvwEvents, cmbEvents, index);
      return SelectComboItemByData(cmbEvents, eventId);
    }
  });
}

// The catalogue is looked up anew after each call to the outside, which may have filled it again.
void EventSelection::loadType(ListView& events, ComboBox& combo, std::size_t index) {
  const EventTypeInfo type = catalogue_.types()[index];
  const RowOrigin origin{type.FilterIndex, static_cast<std::uint16_t>(index)};
  RecordSet rows = module_.DBConnection()->open(eventsQuery(type));
  if (!rows.next()) {
    relistRecord(events, origin, {}, true);
    module_.screen().messageBox({"There are no events in this category"});
    return;
  }
  std::vector<EventRow> read;
  const std::exception_ptr error = exceptionOf([&] { readRows(type, rows, read, combo); });
  relistRecord(events, origin, std::move(read), error == nullptr);
  if (error) std::rethrow_exception(error);
  rows.close();
  if (state_.closed || index >= catalogue_.types().size()) return;
  catalogue_.types()[index].EventsLoaded = true;
}

void EventSelection::readRows(const EventTypeInfo& type, RecordSet& rows,
                              std::vector<EventRow>& read, ComboBox& combo) {
  const bool listed =
      state_.addMode() && !(type.DisplayName == "Alarm Events" && isIntegrated(type));
  takeEvents(module_, rows, [&](const ListedEvent& event) {
    if (listed) read.push_back({event.id, eventRow(type, event)});
    if (!state_.addMode()) combo.addItem(event.number + " - " + event.text, event.id);
  });
}

void EventSelection::UnLoadListEventsByFilterType(ListView& events, int filterRow, bool& unloaded) {
  unloaded = false;
  guarded(module_, "frmTriggerAction.UnLoadListEventsByFilterType", [&] {
    const std::int16_t number = narrowInt16(lstEventFilters.row(filterRow).itemData);
    const CategoryRows category{number, catalogue_.GetFilterTypeByFilterIndex(number),
                                GetFilterListPrefix(filterRow)};
    if (keepsChosen(events, category) || state_.closed) return;
    if (!isZornCategory(number)) {
      events.removeIf([&](const ListItem& row) { return row.tag.empty() && category.holds(row); });
    }
    zornEvents_.ZornUnDisplayFilteredEvents(events, number);
    catalogue_.ClearEventsLoaded(number);
    unloaded = true;
    enableSelectButtons(events);
  });
}

bool EventSelection::keepsChosen(const ListView& events, const CategoryRows& category) {
  for (int index = events.count(); index >= 1; --index) {
    const ListItem& row = events.item(index);
    if (!row.checked || !category.holds(row)) continue;
    return module_.screen().messageBox(
               {"There are events of this type selected. Would you like to unselect them?",
                BoxIcon::Question, BoxButtons::YesNo}) == BoxAnswer::No;
  }
  return false;
}

std::string EventSelection::GetFilterListPrefix(int filterRow) const {
  const std::string& text = lstEventFilters.row(filterRow).text;
  const std::size_t blank = text.find(' ');
  return blank == std::string::npos ? std::string() : text.substr(0, blank);
}

void EventSelection::cmdSelect_Click(int button) {
  guarded(module_, "frmTriggerAction.cmdSelect_Click",
          [&] { lvwEvents.setAllChecked(button == 0); });
}

std::vector<CheckedEvent> EventSelection::checkedEvents() const {
  std::vector<CheckedEvent> events;
  for (int index = 1; index <= lvwEvents.count(); ++index) {
    const ListItem& row = lvwEvents.item(index);
    if (row.checked) events.push_back({row.subItems.front(), parseInt32(row.subItems.front())});
  }
  return events;
}

void EventSelection::enableSelectButtons(const ListView& events) {
  cmdSelectAll.setEnabled(events.count() > 0);
  cmdDeselectAll.setEnabled(events.count() > 0);
}

}  // namespace pelorin
