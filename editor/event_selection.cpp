#include "editor/event_selection.h"

#include <optional>
#include <utility>

#include "catalog/event_text.h"
#include "common/combo_helpers.h"
#include "common/guard.h"
#include "controls/text_key.h"
#include "editor/flag_while.h"

namespace pelorin {

namespace {

constexpr std::int32_t lastOrdinaryCategory = 7;

bool isIntegrated(const EventTypeInfo& type) {
  return equalNoCase(type.TableName, "integratedevents");
}

std::string eventsQuery(const EventTypeInfo& type) {
  if (isIntegrated(type)) return "exec pav_FetchInstalledIntegratedEvents";
  return "select EventId, Description, DefaultDescription from " + type.TableName +
         " where EventID >= " + numberText(type.MinEventID) +
         " and EventID <= " + numberText(type.MaxEventID) + " order by EventID";
}

// Placeholders of the event tables are never offered.
bool isPlaceholder(const RecordSet& row) {
  constexpr std::string_view mark = "Undefined";
  return equalNoCase(row.text("Defaultdescription").substr(0, mark.size()), mark);
}

ListItem eventRow(const EventTypeInfo& type, const std::string& number, const std::string& text) {
  ListItem row;
  row.text = type.FilterType;
  row.subItems = {number, text};
  row.data = type.FilterIndex;
  return row;
}

}  // namespace

// Whose rows a category's are. Two categories can show the same type text: an ordinary row belongs
// to the one it was loaded for.
struct EventSelection::Category {
  std::int16_t number;
  std::string type;
  std::string prefix;

  bool holds(const ListItem& row) const {
    if (row.text.empty() || (row.tag.empty() && row.data != number)) return false;
    return row.text == type || row.text == prefix;
  }
};

EventSelection::EventSelection(Module1& module, EventCatalogue& catalogue, const EditorState& state,
                               TriggerLocations& locations, TabControl& tabs, int page)
    : lstEventFilters("lstEventFilters", {180, 2430, 2880, 4200}),
      lvwEvents("lvwEvents", {3240, 2430, 6540, 3660},
                {{"Type", 1900}, {"Event No.", 1300}, {"Description", 3000}}, true),
      cmdSelectAll("cmdSelect(0)", {3240, 6240, 1710, 390}, "&Select All"),
      cmdDeselectAll("cmdSelect(1)", {5070, 6240, 1710, 390}, "D&eselect All"),
      fraEditOverlay("fraEditOverlay", {3240, 2430, 6540, 4200}, "Edit Overlay"),
      lblEvent("lblEvent", {240, 465, 840, 255}, "Event:"),
      cmbEvents("cmbEvents", {1140, 420, 5160, 330}),
      module_(module),
      catalogue_(catalogue),
      state_(state),
      locations_(locations),
      zornEvents_(module) {
  for (Control* control : controls()) control->setContainer(tabs, page);
  lblEvent.setContainer(fraEditOverlay);
  cmbEvents.setContainer(fraEditOverlay);
  fraEditOverlay.setVisible(false);
  enableSelectButtons(lvwEvents);
  lstEventFilters.onClick = [this] { lstEventFilters_Click(); };
  cmdSelectAll.onClick = [this] { cmdSelect_Click(0); };
  cmdDeselectAll.onClick = [this] { cmdSelect_Click(1); };
}

std::vector<Control*> EventSelection::controls() {
  return {&lstEventFilters, &lvwEvents, &cmdSelectAll, &cmdDeselectAll,
          &fraEditOverlay,  &lblEvent,  &cmbEvents};
}

void EventSelection::InitTriggerTab(const std::string& locationText, std::int32_t eventId) {
  guarded(module_, "frmTriggerAction.InitTriggerTab", [&] {
    if (!catalogue_.loaded()) catalogue_.InitEventTypeInfoArray();
    catalogue_.LoadFilterList(lstEventFilters);
    cmdSelectAll.setEnabled(false);
    cmdDeselectAll.setEnabled(false);
    locations_.showSingle(!state_.addMode());
    ShowEditOverlay(!state_.addMode());
    if (state_.addMode()) return;
    tickCategoryOf(eventId);
    SelectComboItemByData(cmbEvents, eventId);
    locations_.txtLocation.setText(locationText);
  });
}

void EventSelection::tickCategoryOf(std::int32_t eventId) {
  const std::int16_t category = catalogue_.GetFilterIndexByEventID(eventId);
  for (int row = 0; row < lstEventFilters.listCount(); ++row) {
    if (lstEventFilters.row(row).itemData != category) continue;
    lstEventFilters.setSelected(row, true);
    return;
  }
}

void EventSelection::ShowEditOverlay(bool visible) {
  Place place = fraEditOverlay.place();
  place.left = lvwEvents.place().left;
  place.top = lvwEvents.place().top;
  fraEditOverlay.setPlace(place);
  fraEditOverlay.setVisible(visible);
  // What the overlay covers must not be reached with the keyboard behind it.
  lvwEvents.setVisible(!visible);
  cmdSelectAll.setVisible(!visible);
  cmdDeselectAll.setVisible(!visible);
}

void EventSelection::lstEventFilters_Click() {
  if (m_bRetickingFilter) return;
  guarded(module_, "frmTriggerAction.lstEventFilters_Click", [this] {
    if (state_.addMode()) {
      filterForNew();
    } else {
      filterForEdit();
    }
  });
  enableSelectButtons(lvwEvents);
}

void EventSelection::filterForNew() {
  for (int row = 0; row < lstEventFilters.listCount(); ++row) {
    if (lstEventFilters.selected(row)) {
      LoadEventsByFilterType(lvwEvents, cmbEvents, row);
      zornEvents_.ZornDisplayFilteredEvents(lvwEvents, cmbEvents,
                                            lstEventFilters.row(row).itemData);
      continue;
    }
    bool unloaded = false;
    UnLoadListEventsByFilterType(lvwEvents, row, unloaded);
    if (unloaded) continue;
    const FlagWhile reticking(m_bRetickingFilter);
    lstEventFilters.setSelected(row, true);
  }
}

void EventSelection::filterForEdit() {
  const std::int32_t chosen = cmbEvents.listIndex() < 0 ? 0 : cmbEvents.selectedData();
  cmbEvents.clear();
  catalogue_.ClearAllEventsLoaded(lstEventFilters);
  for (int row = 0; row < lstEventFilters.listCount(); ++row) {
    if (!lstEventFilters.selected(row)) continue;
    const std::int32_t category = lstEventFilters.row(row).itemData;
    if (category <= lastOrdinaryCategory) {
      LoadEventsByFilterType(lvwEvents, cmbEvents, row);
    } else {
      zornEvents_.ZornDisplayFilteredEvents(lvwEvents, cmbEvents, category);
    }
  }
  if (chosen > 0) SelectComboItemByData(cmbEvents, chosen);
}

void EventSelection::LoadEventsByFilterType(ListView& events, ComboBox& combo, int filterRow) {
  guarded(module_, "Error: LoadEventsByFilterType(): ", [&] {
    const std::int32_t category = lstEventFilters.row(filterRow).itemData;
    const bool fromCache = state_.addMode() && isZornCategory(category);
    for (std::size_t index = 0; !fromCache && index < catalogue_.types().size(); ++index) {
      const EventTypeInfo& type = catalogue_.types()[index];
      if (type.TableName.empty() || type.FilterIndex != category || type.EventsLoaded) continue;
      loadType(events, combo, index);
    }
    enableSelectButtons(events);
  });
}

// The catalogue is looked up anew after each call to the outside, which may have filled it again.
void EventSelection::loadType(ListView& events, ComboBox& combo, std::size_t index) {
  const EventTypeInfo type = catalogue_.types()[index];
  RecordSet rows = module_.DBConnection()->open(eventsQuery(type));
  if (!rows.next()) {
    module_.screen().messageBox({"There are no events in this category"});
    return;
  }
  EventRowMerge merge(events);
  const std::optional<RunTimeError> error = errorOf([&] { listRows(type, rows, merge, combo); });
  merge.finish();
  if (error) throw RunTimeError(*error);
  rows.close();
  if (index < catalogue_.types().size()) catalogue_.types()[index].EventsLoaded = true;
}

void EventSelection::listRows(const EventTypeInfo& type, RecordSet& rows, EventRowMerge& merge,
                              ComboBox& combo) {
  const bool customised = module_.NTConnection()->EnableCustomize();
  const bool listed =
      state_.addMode() && !(type.DisplayName == "Alarm Events" && isIntegrated(type));
  do {
    if (isPlaceholder(rows)) continue;
    const std::int32_t eventId = rows.int32("EventID");
    const std::string number = eventNumberText(eventId);
    const std::string text = eventText(rows, customised);
    if (listed) merge.add(eventId, eventRow(type, number, text));
    if (!state_.addMode()) combo.addItem(number + " - " + text, eventId);
  } while (rows.next());
}

void EventSelection::UnLoadListEventsByFilterType(ListView& events, int filterRow, bool& unloaded) {
  unloaded = false;
  guarded(module_, "frmTriggerAction.UnLoadListEventsByFilterType", [&] {
    const std::int16_t number = narrowInt16(lstEventFilters.row(filterRow).itemData);
    const Category category{number, catalogue_.GetFilterTypeByFilterIndex(number),
                            GetFilterListPrefix(filterRow)};
    if (keepsChosen(events, category)) return;
    if (!isZornCategory(number)) {
      events.removeIf([&](const ListItem& row) { return row.tag.empty() && category.holds(row); });
    }
    zornEvents_.ZornUnDisplayFilteredEvents(events, number);
    catalogue_.ClearEventsLoaded(number);
    unloaded = true;
    enableSelectButtons(events);
  });
}

bool EventSelection::keepsChosen(const ListView& events, const Category& category) {
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
