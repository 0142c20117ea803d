// The answers of a small site, one row per kind of node, for a scripted connection.
#pragma once

#include <string>

#include "tests/fakes/surroundings.h"

namespace pelorin::test {

// One server (ID 1, "main", site 7).
inline void answerServer(ScriptedConnection& database) {
  database.answer("SELECT * From Servers", {{"ServerID", "Server_Name", "Site_ID"},
                                            {{Value{std::int64_t{1}}, "main", std::int64_t{7}}}});
}

inline Result controllerRows(std::vector<std::vector<Value>> rows) {
  return {{"Controller_ID", "Controller_Name", "Controller_Type", "Address"}, std::move(rows)};
}

inline Result portRows(std::vector<std::vector<Value>> rows) {
  return {{"PortID", "PortName", "PortStyle", "PortType", "Address"}, std::move(rows)};
}

inline Value number(std::int64_t value) {
  return value;
}

}  // namespace pelorin::test
