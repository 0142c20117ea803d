// A summary over prepared answers; what it asks for and shows can be read back.
#pragma once

#include <gmock/gmock.h>

#include "summary/frm_ta_summary.h"
#include "tests/fakes/lookups.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {

inline const std::string typesQuery = "exec TA_FetchAllEventTypeInfo";
inline const std::string cctvQuery =
    "select CCTV_TriggerAction.*, CCTV_Switchers.[name] as SwitcherName from CCTV_TriggerAction "
    " inner join CCTV_Switchers on CCTV_Switchers.SwitcherId = CCTV_TriggerAction.SwitcherId "
    "order by t_Address, T_EventID";
inline const std::string summaryQuery = "exec TA_FetchSummary";

inline std::string descriptionQuery(int eventId) {
  return "select EventId, Description, DefaultDescription from DoorEvents where EventId = " +
         std::to_string(eventId);
}
inline std::string dvrNameQuery(int actionId) {
  return "exec TA_FetchDVRNameFromAction " + std::to_string(actionId);
}

using Row = std::vector<Value>;

inline Row cctvRow(std::int64_t id, const std::string& address, std::int64_t event,
                   std::int64_t action, const std::string& switcher) {
  return {id, address, event, std::int64_t{1}, action, switcher};
}
inline Row deviceRow(std::int64_t id, const std::string& address, std::int64_t event,
                     const std::string& className, std::int64_t action) {
  return {id, address, event, className, action};
}

class SummaryTest : public testing::Test, protected OneForm {
 protected:
  SummaryTest() {
    database.answer(typesQuery,
                    {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                     {{"Door", std::int64_t{0}, "DoorEvents", std::int64_t{0}, 9999}}});
    answerDescription(42, "Door forced");
    answerDescription(5001, "Alarm input");
    answerDvrName(31, "Recorder A");
  }
  Form& tested() override { return form; }
  void TearDown() override { screen.unloadAll(); }

  void answerDescription(int eventId, const std::string& text) {
    database.answer(descriptionQuery(eventId),
                    {{"EventId", "Description", "DefaultDescription"}, {{eventId, Null{}, text}}});
  }
  void answerDvrName(int actionId, Value name) {
    database.answer(dvrNameQuery(actionId), {{"DVRName"}, {{std::move(name)}}});
  }
  void answerCctv(std::vector<Row> rows) {
    database.answer(cctvQuery,
                    {{"TA_ID", "T_Address", "T_EventID", "SwitcherID", "A_type", "SwitcherName"},
                     std::move(rows)});
  }
  void answerDevices(std::vector<Row> rows) {
    database.answer(summaryQuery,
                    {{"TriggerID", "TriggerAddress", "TriggerEventID", "Classname", "ActionID"},
                     std::move(rows)});
  }
  // CCTV 5 at "1.1" on 42; DVR 5 at "2.1" on 42; class "Intercom" 8 at "3.1" on 5001.
  void answerThree() {
    answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
    answerDevices(
        {deviceRow(5, "2.1", 42, "DVR / NVR", 31), deviceRow(8, "3.1", 5001, "Intercom", 9)});
  }
  void open() {
    screen.show(form);
    journal.clear();
  }
  void openThree() {
    answerThree();
    open();
  }

  Grid& grid() { return control<Grid>("MSFlexGrid1"); }
  bool editAndDeleteEnabled() {
    EXPECT_EQ(edit.enabled(), remove.enabled());
    return edit.enabled();
  }
  std::string row(int number) { return rowText(grid(), number); }
  std::vector<std::string> rows() { return rowTexts(grid()); }
  std::vector<std::string> boxes() const { return screen.boxTexts(); }

  Surroundings surroundings;
  ScriptedConnection& database = *surroundings.database;
  RecordingServices& services = *surroundings.services;
  RecordingScreen& screen = surroundings.screen;
  Module1& module = surroundings.module;
  Journal& journal = surroundings.journal;
  EventCatalogue catalogue{module};

  struct Shown {
    EditorRequest request;
    WindowHandle owner;
  };
  std::vector<Shown> shown;
  frmTASummary form{module, catalogue, [this](const EditorRequest& request, WindowHandle owner) {
                      shown.push_back({request, owner});
                    }};
  Button& edit = button("cmdAddEdit(1)");
  Button& remove = button("cmdDelete");

  const std::string cctvLine = "00042 - Door forced|1.1|#1677|CCTV|Matrix|5|42|";
  const std::string dvrLine = "00042 - Door forced|2.1|Trigger Alarm|DVR / NVR|Recorder A|5|42|";
  const std::string intercomLine = "05001 - Alarm input|3.1||Intercom||8|5001|";
};

}  // namespace pelorin::test
