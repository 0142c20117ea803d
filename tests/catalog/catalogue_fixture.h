// A catalogue over prepared answers: three ordinary types, one newer one.
#pragma once

#include <gmock/gmock.h>

#include "catalog/event_catalogue.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {

inline const std::string typesQuery = "exec TA_FetchAllEventTypeInfo";

inline std::vector<Value> eventType(const std::string& type, int filter, const std::string& table,
                                    std::int64_t least, std::int64_t most) {
  return {type, std::int64_t{filter}, table, least, most};
}

class CatalogueTest : public testing::Test {
 protected:
  void answerTypes(std::vector<std::vector<Value>> rows) {
    database.answer(
        typesQuery,
        {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"}, std::move(rows)});
  }
  void loadThreeTypes() {
    answerTypes({eventType("Door", 0, "DoorEvents", 0, 999),
                 eventType("Alarm", 2, "AlarmEvents", 5000, 5999),
                 eventType("Input", 3, "InputEvents", 5500, 80001)});
    catalogue.InitEventTypeInfoArray();
    surroundings.journal.clear();
  }
  std::vector<std::string> boxes() const { return surroundings.screen.boxTexts(); }

  Surroundings surroundings;
  ScriptedConnection& database = *surroundings.database;
  RecordingServices& services = *surroundings.services;
  Module1& module = surroundings.module;
  const Journal& journal = surroundings.journal;
  EventCatalogue catalogue{module};
};

}  // namespace pelorin::test
