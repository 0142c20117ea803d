#include "host/core/played_rows.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace pelorin::host {

namespace {

using Pair = std::pair<std::string, std::int32_t>;

// Empty when there is no row.
std::string firstText(Connection& database, const std::string& sql) {
  RecordSet rows = database.open(sql);
  return rows.next() ? rows.text(0) : std::string();
}

bool holdsDoors(Connection& database) {
  for (std::size_t at = 0; at < std::size(typical::addresses); ++at) {
    const std::string address = typical::addresses[at];
    const std::string name =
        firstText(database, "select DoorName from Doors where Address = '" + address + "'");
    if (name != typical::doors[at]) return false;
  }
  return true;
}

bool holdsEvents(Connection& database) {
  return std::all_of(std::begin(typical::events), std::end(typical::events), [&](int event) {
    return !firstText(database,
                      "select EventId from AlarmEvents where EventId = " + std::to_string(event))
                .empty();
  });
}

bool holdsSwitcher(Connection& database) {
  return firstText(database, "select Name from CCTV_Switchers where SwitcherID = " +
                                 std::to_string(typical::switcher)) == typical::switcherName;
}

// What is missing, in the server's words where it has any; empty when all is there.
std::string missingFrom(Connection& database) {
  try {
    if (!holdsDoors(database)) return "its doors are others.";
    if (!holdsEvents(database)) return "its alarm events are others.";
    return holdsSwitcher(database) ? "" : "its switchers are others.";
  } catch (const RunTimeError& error) {
    return error.description();
  }
}

bool isAsRequested(const RecordSet& row) {
  return row.int32("SwitcherID") == typical::switcher && row.int32("Camera") == typical::camera &&
         row.int32("Monitor") == typical::monitor && row.int32("A_type") == 1;
}

std::map<Pair, int> countedPairs(const std::vector<PlayedRow>& rows) {
  std::map<Pair, int> pairs;
  for (const PlayedRow& row : rows) ++pairs[{row.address, row.event}];
  return pairs;
}

}  // namespace

void checkDemonstrationSite(Connection& database) {
  const std::string missing = missingFrom(database);
  if (missing.empty()) return;
  throw RunTimeError(error_number::internalError,
                     "The database does not hold the demonstration site, which a played request "
                     "needs: " +
                         missing);
}

std::set<std::int32_t> triggerNumbers(Connection& database) {
  std::set<std::int32_t> numbers;
  RecordSet rows = database.open("select TA_ID from CCTV_TriggerAction");
  while (rows.next()) numbers.insert(rows.int32(0));
  return numbers;
}

std::vector<PlayedRow> playedRows(Connection& database, const std::set<std::int32_t>& before) {
  std::vector<PlayedRow> played;
  RecordSet rows = database.open("select * from CCTV_TriggerAction order by TA_ID");
  while (rows.next()) {
    PlayedRow row{rows.int32("TA_ID"), rows.text("T_Address"), rows.int32("T_EventID")};
    const bool wanted =
        std::count(std::begin(typical::addresses), std::end(typical::addresses), row.address) > 0 &&
        std::count(std::begin(typical::events), std::end(typical::events), row.event) > 0;
    if (wanted && !before.contains(row.id) && isAsRequested(rows)) played.push_back(std::move(row));
  }
  return played;
}

bool isWhole(const std::vector<PlayedRow>& rows) {
  return areCertain(rows) &&
         rows.size() == std::size(typical::addresses) * std::size(typical::events);
}

bool areCertain(const std::vector<PlayedRow>& rows) {
  return countedPairs(rows).size() == rows.size();
}

bool removeRow(Connection& database, const PlayedRow& row) {
  const std::string condition = "TA_ID = " + std::to_string(row.id);
  database.execute("delete from CCTV_TriggerAction where " + condition);
  return firstText(database, "select TA_ID from CCTV_TriggerAction where " + condition).empty();
}

}  // namespace pelorin::host
