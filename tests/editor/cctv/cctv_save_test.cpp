// What saving a CCTV trigger writes, in which order.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// Events 5001 and 5002 of the alarm category return to normal by 5401 and 5402.
class SaveCctvTest : public EditorTest {
 protected:
  void prepare(int locations, std::initializer_list<int> events) {
    openEditor();
    addLocations(locations);
    tickFilter(0);
    checkEvents(events);
    control<TabControl>("SSTab1").setTab(1);
  }
  void chooseAction(int action) { combo("cmbCCTVActions").userSelect(action - 1); }
  bool save() {
    journal.clear();
    return editor->SaveTriggerAction();
  }

  void edit() {
    answerCctvTrigger(5, {5, "1.2.3", 5001, 11, 1, 2, 3, 33, true, 0});
    editCctv();
  }
};

TEST_F(SaveCctvTest, WritesOneRowPerLocationAndCheckedEventInOrder) {
  prepare(2, {1, 2});
  EXPECT_TRUE(save());
  EXPECT_THAT(
      journal.lines(),
      ElementsAre("sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5001, '1.1.1', 1, '5001', '1.1.1 - Door "
                  "1', 0, False",
                  "host: LogEvent(Add, TriggerAction, 0, Trigger Event 5001, 1184)",
                  "sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5002, '1.1.1', 1, '5002', '1.1.1 - Door "
                  "1', 0, False",
                  "host: LogEvent(Add, TriggerAction, 0, Trigger Event 5002, 1184)",
                  "sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5001, '1.1.2', 1, '5001', '1.1.2 - Door "
                  "2', 0, False",
                  "host: LogEvent(Add, TriggerAction, 0, Trigger Event 5001, 1184)",
                  "sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5002, '1.1.2', 1, '5002', '1.1.2 - Door "
                  "2', 0, False",
                  "host: LogEvent(Add, TriggerAction, 0, Trigger Event 5002, 1184)", "reload"));
}

TEST_F(SaveCctvTest, WritesWhatTheOperatorChose) {
  prepare(1, {1});
  combo("cmbCCTVSwitchers").userSelect(1);
  combo("cmbCCTVMonitors").userSelect(1);
  control<CheckBox>("chkCCTVDisplayViewer").userToggle();
  EXPECT_TRUE(save());
  EXPECT_EQ(writes().front(),
            "sql: exec CCTV_Insert_TA 12, 2, 5, 39, 5001, '1.1.1', 1, '5001', '1.1.1 - Door 1', 0, "
            "True");
}

// Three locations and two events: what is written for each action, with and without the
// return-to-normal rows.
struct MatrixCase {
  int action;
  bool returnToNormal;
};

class SaveCctvMatrix : public SaveCctvTest, public ::testing::WithParamInterface<MatrixCase> {};

TEST_P(SaveCctvMatrix, WritesEveryRowAndAuditRecordInOrder) {
  const auto [action, returnToNormal] = GetParam();
  prepare(3, {1, 2});
  chooseAction(action);
  textBox("txtCCTVAlarm").setText("17");
  control<CheckBox>("chkCCTVAutoRTNTriggers").setChecked(returnToNormal);
  EXPECT_TRUE(save());

  std::vector<std::string> expected;
  const auto insert = [&](int location, int event, int written) {
    const std::string address = "1.1." + std::to_string(location);
    const std::string number = std::to_string(event);
    expected.push_back("sql: exec CCTV_Insert_TA 11, 1, 1, 31, " + number + ", '" + address +
                       "', " + std::to_string(written) + ", '" + number + "', '" + address +
                       " - Door " + std::to_string(location) + "', 17, False");
  };
  for (int location = 1; location <= 3; ++location) {
    for (const int event : {5001, 5002}) {
      insert(location, event, action);
      expected.push_back("host: LogEvent(Add, TriggerAction, 0, Trigger Event " +
                         std::to_string(event) + ", 1184)");
      if (action != 2 || !returnToNormal) continue;
      expected.push_back(
          "sql: select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = " +
          std::to_string(event));
      insert(location, event + 400, 3);
    }
  }
  expected.push_back("reload");
  EXPECT_THAT(journal.lines(), ElementsAreArray(expected));
  EXPECT_TRUE(screen.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Actions, SaveCctvMatrix,
                         ::testing::Values(MatrixCase{1, false}, MatrixCase{1, true},
                                           MatrixCase{2, false}, MatrixCase{2, true},
                                           MatrixCase{3, false}, MatrixCase{3, true}));

TEST_F(SaveCctvTest, AnAlarmWithReturnToNormalGivesTwelveRowsAndSixAuditRecords) {
  prepare(3, {1, 2});
  chooseAction(2);
  control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
  EXPECT_TRUE(save());
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 12U);
  EXPECT_EQ(journal.of("host: LogEvent").size(), 6U);
}

TEST_F(SaveCctvTest, NoReturnToNormalEventWritesNoSecondRow) {
  for (const Value& normal : std::vector<Value>{0, -1, Null()}) {
    database->answer(
        "select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = 5001",
        {{"RTNEventID"}, {{normal}}});
    prepare(1, {1});
    chooseAction(2);
    control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
    EXPECT_TRUE(save());
    EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 1U);
    editor->unload();
  }
}

TEST_F(SaveCctvTest, NoCheckedEventWritesNothingAndIsTrue) {
  prepare(2, {});
  EXPECT_TRUE(save());
  EXPECT_THAT(journal.lines(), ElementsAre("reload"));
}

TEST_F(SaveCctvTest, TheAlarmIsTheLeadingNumberOfTheText) {
  prepare(1, {1});
  chooseAction(2);
  for (const auto& [text, alarm] :
       {std::pair("", "0"), std::pair("abc", "0"), std::pair("12x", "12"), std::pair(" 7", "7"),
        std::pair("-4", "-4")}) {
    textBox("txtCCTVAlarm").setText(text);
    EXPECT_TRUE(save());
    EXPECT_THAT(writes().front(), ::testing::EndsWith(std::string("', ") + alarm + ", False"));
  }
}

TEST_F(SaveCctvTest, AnAlarmBeyondSixteenBitsIsReportedAndNothingIsWritten) {
  prepare(2, {1, 2});
  chooseAction(2);
  textBox("txtCCTVAlarm").setText("32768");
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith("frmTriggerAction.SaveCCTVTriggerAction: "), HasSubstr("Overflow")));
}

TEST_F(SaveCctvTest, ACameraBeyondSixteenBitsIsReportedAndNothingIsWritten) {
  database->answer("select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
                   {{"Name", "Index"}, {{"Far", 70000}}});
  prepare(1, {1});
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  EXPECT_EQ(screen.boxes.size(), 1U);
}

TEST_F(SaveCctvTest, WithoutAPresetThePresetIsZero) {
  database->answer("CCTV_FetchCameraNoPresets 1, 11", {{"PresetName", "PresetID"}, {}});
  prepare(1, {1});
  EXPECT_TRUE(save());
  EXPECT_THAT(writes().front(), HasSubstr("CCTV_Insert_TA 11, 1, 1, 0, 5001"));
}

TEST_F(SaveCctvTest, ACameraCallWithoutACameraIsAnErrorThatNamesTheField) {
  database->answer("select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
                   {{"Name", "Index"}, {}});
  prepare(1, {1});
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith("frmTriggerAction.SaveCCTVTriggerAction: "), HasSubstr("Camera")));
}

TEST_F(SaveCctvTest, ACameraCallWithoutAMonitorIsAnErrorThatNamesTheField) {
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 11",
                   {{"nOutputs"}, {{0}}});
  prepare(1, {1});
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, HasSubstr("Monitor"));
}

TEST_F(SaveCctvTest, ASwitcherWithoutCamerasAndMonitorsCanStillRaiseItsAlarm) {
  database->answer("select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
                   {{"Name", "Index"}, {}});
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 11",
                   {{"nOutputs"}, {{Null()}}});
  prepare(1, {1});
  chooseAction(2);
  EXPECT_TRUE(save());
  EXPECT_THAT(writes().front(), HasSubstr("CCTV_Insert_TA 11, 0, 0, 0, 5001, '1.1.1', 2,"));
}

TEST_F(SaveCctvTest, AQuoteInALocationBreaksTheStatementAndEndsTheSave) {
  prepare(1, {1, 2});
  editor->addLocation("9", "9 - Porter's lodge", "9");
  addLocations(0);
  const std::string broken =
      "exec CCTV_Insert_TA 11, 1, 1, 31, 5001, '9', 1, '5001', '9 - Porter's lodge', 0, False";
  database->fail(broken, "Incorrect syntax near 's'.");
  EXPECT_FALSE(save());
  EXPECT_EQ(journal.of("sql: ").back(), broken);
  EXPECT_EQ(journal.of("host: LogEvent").size(), 2U) << "the first location's rows stay";
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              StartsWith("frmTriggerAction.InsertCCTVTriggerActionForThisLocation: Line: "));
  EXPECT_EQ(reloads, 0);
  EXPECT_EQ(environment.lines.size(), 1U);
}

TEST_F(SaveCctvTest, AFailingAuditRecordEndsTheSaveAfterItsRow) {
  prepare(2, {1});
  services->failing.insert("LogEvent");
  EXPECT_FALSE(save());
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 1U);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              StartsWith("frmTriggerAction.InsertCCTVTriggerActionForThisLocation: "));
}

TEST_F(SaveCctvTest, WhatChangesWhileTheSaveRunsDoesNotChangeWhatIsWritten) {
  struct Meddling final : Connection {
    std::shared_ptr<Connection> inner;
    std::function<void()> meddle;
    std::unique_ptr<Cursor> openCursor(std::string_view) override { return nullptr; }
    void run(std::string_view sql) override {
      inner->execute(sql);
      meddle();
    }
    void call(ProcedureCall& call) override { inner->execute(call); }
  };
  prepare(2, {1, 2});
  const auto meddling = std::make_shared<Meddling>();
  meddling->inner = database;
  meddling->meddle = [this] {
    control<ListView>("lvwLocation").clear();
    control<ListView>("lvwEvents").clear();
  };
  module.setDBConnection(meddling);
  EXPECT_TRUE(save());
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 4U);
}

TEST_F(SaveCctvTest, ReferencesSetAgainAreUsedFromTheNextStatementOn) {
  prepare(1, {1});
  Journal other;
  const auto later = std::make_shared<ScriptedConnection>(other);
  module.setDBConnection(later);
  EXPECT_TRUE(save());
  EXPECT_EQ(later->statements().size(), 1U);
  EXPECT_THAT(database->statements(), IsEmpty());
}

TEST_F(SaveCctvTest, WithoutAConnectionTheSaveIsReportedOnce) {
  prepare(1, {1});
  module.setDBConnection(nullptr);
  EXPECT_FALSE(save());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith("frmTriggerAction.InsertCCTVTriggerActionForThisLocation: "),
                    HasSubstr("Object variable or With block variable not set")));
}

TEST_F(SaveCctvTest, EditUpdatesTheOneTrigger) {
  edit();
  EXPECT_TRUE(save());
  EXPECT_THAT(
      journal.lines(),
      ElementsAre("sql: exec CCTV_Update_TA 5, 11, 3, 2, 33, 5001, '1.2.3', 1, '5001', "
                  "'1.2.3', 0, True",
                  "host: LogEvent(Update, TriggerAction, 5, Trigger Event 5001, 1185)", "reload"));
}

TEST_F(SaveCctvTest, EditStoresTheChosenLocationAndEvent) {
  edit();
  editor->setSingleLocation("7.7 - Back door", "7.7");
  combo("cmbEvents").userSelect(1);
  EXPECT_TRUE(save());
  EXPECT_EQ(writes().front(),
            "sql: exec CCTV_Update_TA 5, 11, 3, 2, 33, 5002, '7.7', 1, '5002', '7.7 - Back door', "
            "0, True");
}

TEST_F(SaveCctvTest, EditWritesNoReturnToNormalRow) {
  edit();
  control<TabControl>("SSTab1").setTab(1);
  chooseAction(2);
  control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
  EXPECT_TRUE(save());
  EXPECT_EQ(database->statements().size(), 1U);
}

TEST_F(SaveCctvTest, EditWithAFailingUpdateIsReportedUnderTheSavesName) {
  edit();
  database->fail("exec CCTV_Update_TA 5, 11, 3, 2, 33, 5001, '1.2.3', 1, '5001', '1.2.3', 0, True");
  EXPECT_FALSE(save());
  EXPECT_THAT(journal.of("host: LogEvent"), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.SaveCCTVTriggerAction: Line: "));
}

TEST_F(SaveCctvTest, AddValidatesTheLocationThenTheSwitcher) {
  database->answer("select SwitcherID, Name, INI_FILE from CCTV_Switchers",
                   {{"SwitcherID", "Name", "INI_FILE"}, {}});
  openEditor();
  EXPECT_FALSE(save());
  addLocations(1);
  EXPECT_FALSE(save());
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Required field missing. Must specify one or more trigger locations.",
                          "Cannot save trigger. There are no CCTV units defined for this trigger"));
  for (const BoxRequest& box : screen.boxes) EXPECT_EQ(box.icon, BoxIcon::Information);
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(SaveCctvTest, EditValidatesTheLocationThenTheSwitcherThenTheEvent) {
  edit();
  combo("cmbCCTVSwitchers").setListIndex(-1);
  combo("cmbEvents").setListIndex(-1);
  textBox("txtLocation").setText("");
  EXPECT_FALSE(save());
  textBox("txtLocation").setText("1.2.3");
  EXPECT_FALSE(save());
  combo("cmbCCTVSwitchers").setListIndex(0);
  EXPECT_FALSE(save());
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Required field missing. Must specify trigger location.",
                          "Cannot save trigger. There are no CCTV units defined for this trigger",
                          "Required field missing. Must specify event."));
  for (const BoxRequest& box : screen.boxes) EXPECT_EQ(box.icon, BoxIcon::Information);
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(SaveCctvTest, ATriggerIdBelowZeroIsSavedAsAnUpdateThatLacksItsEvent) {
  openEditor({-1, {}});
  addLocations(1);
  EXPECT_FALSE(save());
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Required field missing. Must specify event."));
  EXPECT_THAT(writes(), IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
