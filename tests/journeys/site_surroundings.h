// The demonstration site in memory, with recording surroundings: what a form does to the database
// can be compared row by row.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/module1.h"
#include "site/site_database.h"
#include "tests/fakes/fake_environment.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/recording_services.h"

namespace pelorin::test {

// The tables that the component writes, each row as one text with its cells ended by "|".
using TriggerTables = std::map<std::string, std::vector<std::string>>;

struct SiteSurroundings {
  Journal journal;
  RecordingScreen screen{journal};
  FakeEnvironment environment;
  std::shared_ptr<RecordingServices> services = std::make_shared<RecordingServices>(journal);
  SiteDatabase site;
  std::shared_ptr<Connection> database;
  Module1 module{screen, environment};

  explicit SiteSurroundings(const SiteFilling& filling = demonstrationSite)
      : site(SiteDatabase::inMemory(filling)), database(site.connect()) {
    module.setNTConnection(services);
    module.setDBConnection(database);
  }

  std::vector<std::string> rowsOf(const std::string& sql) {
    std::vector<std::string> found;
    RecordSet rows = database->open(sql);
    while (rows.next()) {
      std::string& row = found.emplace_back();
      for (std::size_t i = 0; i < rows.columns().size(); ++i) {
        row += rows.text(static_cast<int>(i)) + "|";
      }
    }
    return found;
  }
  TriggerTables triggerTables() {
    TriggerTables tables;
    for (const char* table :
         {"CCTV_TriggerAction", "IntegratedDeviceTriggers", "DVR_TriggerActions"}) {
      tables[table] = rowsOf(std::string("select * from ") + table);
    }
    return tables;
  }
};

}  // namespace pelorin::test
