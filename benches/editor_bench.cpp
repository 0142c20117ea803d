// Ticking and unticking eight categories with 20,000 events in the editor, as a ratio to reading
// the same rows with nothing done to them.
#include <benchmark/benchmark.h>

#include <optional>

#include "benches/stopwatch.h"
#include "editor/frm_trigger_action.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

constexpr int categoryCount = 8;
constexpr int eventsPerCategory = 2500;

std::string tableName(int category) {
  return "Events" + std::to_string(category);
}

std::string eventsQuery(int category) {
  return "select EventId, Description, DefaultDescription from " + tableName(category) +
         " where EventID >= 1 and EventID <= 99999 order by EventID";
}

// The categories' numbers lie between each other, so that every row of one goes between rows of the
// others.
void fill(ScriptedConnection& database) {
  Result types{{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"}, {}};
  Result filters{{"FilterIndex", "FilterType"}, {}};
  for (int category = 0; category < categoryCount; ++category) {
    const std::string type = "Type" + std::to_string(category);
    types.rows.push_back({type, category, tableName(category), 1, 99999});
    filters.rows.push_back({category, type});
    Result events{{"EventId", "Description", "DefaultDescription"}, {}};
    for (int event = 0; event < eventsPerCategory; ++event) {
      events.rows.push_back(
          {1 + event * categoryCount + category, Null(), "Something happened at a door"});
    }
    database.answer(eventsQuery(category), std::move(events));
  }
  database.answer("exec TA_FetchAllEventTypeInfo", std::move(types));
  database.answer("select * from TA_EventFilters order by FilterIndex", std::move(filters));
}

std::size_t readAll(Connection& database) {
  std::size_t read = 0;
  for (int category = 0; category < categoryCount; ++category) {
    RecordSet rows = database.open(eventsQuery(category));
    while (rows.next()) ++read;
  }
  return read;
}

struct Editor {
  Surroundings surroundings;
  EventCatalogue catalogue{surroundings.module};
  std::optional<frmTriggerAction> form;
  ListBox* filters = nullptr;
  ListView* events = nullptr;

  Editor() {
    fill(*surroundings.database);
    form.emplace(
        surroundings.module, catalogue, EditorRequest(), [] {},
        [](LocationTarget&, const std::string&) {});
    surroundings.screen.show(*form);
    filters = dynamic_cast<ListBox*>(form->find("lstEventFilters"));
    events = dynamic_cast<ListView*>(form->find("lvwEvents"));
  }
  ~Editor() { surroundings.screen.unloadAll(); }
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  void toggleAll() const {
    for (int row = 0; row < filters->listCount(); ++row) filters->userToggle(row);
  }
};

void tickAndUntick(benchmark::State& state) {
  const Editor editor;
  double ticking = 0;
  double unticking = 0;
  double bare = 0;
  for (auto iteration : state) {
    const double ticked = secondsOf([&] { editor.toggleAll(); });
    if (editor.events->count() != categoryCount * eventsPerCategory) {
      state.SkipWithError("events are missing");
    }
    const double unticked = secondsOf([&] { editor.toggleAll(); });
    state.SetIterationTime(ticked + unticked);
    ticking += ticked;
    unticking += unticked;
    bare += secondsOf([&] { benchmark::DoNotOptimize(readAll(*editor.surroundings.database)); });
  }
  state.counters["tick_ratio_to_bare"] = ticking / bare;
  state.counters["untick_ratio_to_bare"] = unticking / bare;
  state.counters["events"] = categoryCount * eventsPerCategory;
}

BENCHMARK(tickAndUntick)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorin::test
