// The rows of trigger actions that a played request leaves in a database.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "database/connection.h"

namespace pelorin::host {

// What the request is about, in the words of the demonstration site.
namespace typical {
inline constexpr const char* addresses[] = {"001.01.001.D02", "001.01.001.D03"};
inline constexpr const char* doors[] = {"Revolving door", "Visitor gate"};
inline constexpr int events[] = {1, 2};
inline constexpr int switcher = 1;
inline constexpr const char* switcherName = "Main building switcher";
inline constexpr int camera = 3;
inline constexpr int monitor = 2;
}  // namespace typical

struct PlayedRow {
  std::int32_t id = 0;
  std::string address;
  std::int32_t event = 0;
};

// RunTimeError with one sentence for the user when the database does not hold what the request asks
// for.
void checkDemonstrationSite(Connection& database);

std::set<std::int32_t> triggerNumbers(Connection& database);

// The rows that were not there before and are as the request asks for; what others wrote in the
// meantime is none of them.
std::vector<PlayedRow> playedRows(Connection& database, const std::set<std::int32_t>& before);

// True when each pair of address and event is there once.
bool isWhole(const std::vector<PlayedRow>& rows);
// True when none is there twice: else it cannot be known whose they are.
bool areCertain(const std::vector<PlayedRow>& rows);

// Deletes one row; false when it is still there.
bool removeRow(Connection& database, const PlayedRow& row);

}  // namespace pelorin::host
