// Loading the summary, as a ratio to reading the same rows with nothing done to them: the part that
// is the summary's own, whatever machine it is measured on.
#include <benchmark/benchmark.h>

#include "benches/stopwatch.h"
#include "summary/frm_ta_summary.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

constexpr int rowCount = 100000;
constexpr int eventCount = 500;

const std::string cctvQuery =
    "select CCTV_TriggerAction.*, CCTV_Switchers.[name] as SwitcherName from CCTV_TriggerAction "
    " inner join CCTV_Switchers on CCTV_Switchers.SwitcherId = CCTV_TriggerAction.SwitcherId "
    "order by t_Address, T_EventID";
const std::string summaryQuery = "exec TA_FetchSummary";

std::string descriptionQuery(int eventId) {
  return "select EventId, Description, DefaultDescription from DoorEvents where EventId = " +
         std::to_string(eventId);
}

std::string dvrNameQuery(int actionId) {
  return "exec TA_FetchDVRNameFromAction " + std::to_string(actionId);
}

// Half of the rows are CCTV actions, half are triggers of recorders with an action each.
void fill(ScriptedConnection& database) {
  Result cctv{{"TA_ID", "T_Address", "T_EventID", "SwitcherID", "A_type", "SwitcherName"}, {}};
  Result devices{{"TriggerID", "TriggerAddress", "TriggerEventID", "Classname", "ActionID"}, {}};
  for (std::int64_t i = 1; i <= rowCount / 2; ++i) {
    const std::string address = "1.1." + std::to_string(i);
    cctv.rows.push_back({i, address, i % eventCount, std::int64_t{1}, i % 3 + 1, "Matrix"});
    devices.rows.push_back({i, address, i % eventCount, "DVR / NVR", i});
    database.answer(dvrNameQuery(static_cast<int>(i)), {{"DVRName"}, {{"Recorder A"}}});
  }
  for (int event = 0; event < eventCount; ++event) {
    database.answer(descriptionQuery(event),
                    {{"EventId", "Description", "DefaultDescription"},
                     {{std::int64_t{event}, Null{}, "Something happened"}}});
  }
  database.answer(
      "exec TA_FetchAllEventTypeInfo",
      {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
       {{"Door", std::int64_t{0}, "DoorEvents", std::int64_t{0}, std::int64_t{eventCount}}}});
  database.answer(cctvQuery, std::move(cctv));
  database.answer(summaryQuery, std::move(devices));
}

std::size_t readAll(Connection& database, const std::string& sql) {
  RecordSet rows = database.open(sql);
  std::size_t read = 0;
  while (rows.next()) ++read;
  return read;
}

// The statements that a load has to send, in number and size, with their rows fetched.
std::size_t bareStatements(Connection& database) {
  std::size_t read = readAll(database, cctvQuery) + readAll(database, summaryQuery);
  for (int event = 0; event < eventCount; ++event) {
    read += readAll(database, descriptionQuery(event));
  }
  for (int action = 1; action <= rowCount / 2; ++action) {
    read += readAll(database, dvrNameQuery(action));
  }
  return read;
}

void loadSummary(benchmark::State& state) {
  Surroundings surroundings;
  fill(*surroundings.database);
  EventCatalogue catalogue(surroundings.module);
  frmTASummary form(surroundings.module, catalogue, [](const EditorRequest&, WindowHandle) {});
  surroundings.screen.show(form);
  double load = 0;
  double bare = 0;
  for (auto iteration : state) {
    const double seconds = secondsOf([&form] { form.ReloadSummary(); });
    state.SetIterationTime(seconds);
    load += seconds;
    bare += secondsOf([&] { benchmark::DoNotOptimize(bareStatements(*surroundings.database)); });
    surroundings.journal.clear();
  }
  state.counters["ratio_to_bare"] = load / bare;
  state.counters["rows"] = rowCount;
  surroundings.screen.unloadAll();
}

BENCHMARK(loadSummary)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorin::test
