// Edited triggers of which something could not be read: refused when the save would write it, and
// saved otherwise.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

const std::string halfReadRefusal = "Cannot save trigger. It could not be read completely.";
const std::string doorEventsReading =
    "select EventId, Description, DefaultDescription from DoorEvents where EventID >= 100 and "
    "EventID <= 199 order by EventID";
const std::string alarmEventsReading =
    "select EventId, Description, DefaultDescription from AlarmEvents where EventID >= 5000 and "
    "EventID <= 5999 order by EventID";
const std::string newerCategoryReading =
    "select ZornEventType from zorn_EventDefinitions where EventID = 80003";

class HalfReadTest : public EditorTest {
 protected:
  HalfReadTest() {
    answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 2, 3, 33, true, 0});
    answerDvrTrigger(8, 101, 300, device_class::dvr);
    answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 52, 61});
  }
  void storeEvent(int eventId) {
    answerCctvTrigger(5, {5, "1.2.3", eventId, 11, 1, 2, 3, 33, true, 0});
    answerDvrTrigger(8, eventId, 300, device_class::dvr);
  }
  // One reading fails while the editor opens; then the database is well again.
  void openBroken(const std::string& sql, std::int16_t deviceClass) {
    database->fail(sql, "no rights");
    deviceClass == device_class::cctv ? editCctv() : editDvr();
    ASSERT_TRUE(editor->isOpen());
    EXPECT_FALSE(screen.boxes.empty()) << "the error is reported";
    database->mend();
    screen.boxes.clear();
    journal.clear();
  }
  void expectRefused() {
    journal.clear();
    for (const char* name : {"cmdApply", "cmdOK"}) {
      screen.boxes.clear();
      button(name).userClick();
      ASSERT_EQ(screen.boxes.size(), 1U) << name;
      EXPECT_EQ(screen.boxes[0].text, halfReadRefusal);
      EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Information);
      EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::Ok);
    }
    EXPECT_TRUE(editor->isOpen());
    EXPECT_THAT(writes(), IsEmpty());
  }
  void expectSaved(const std::string& statement) {
    button("cmdOK").userClick();
    EXPECT_FALSE(editor->isOpen());
    EXPECT_THAT(screen.boxTexts(), IsEmpty());
    EXPECT_THAT(writes(), Contains("sql: " + statement));
  }

  const std::string cctvAsStored =
      "exec CCTV_Update_TA 5, 11, 3, 2, 33, 101, '1.2.3', 1, '101', '1.2.3', 0, True";
  const std::string dvrAsStored = "DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61";
};

class RefusedCctv : public HalfReadTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(RefusedCctv, SaysSoAndWritesNothing) {
  openBroken(GetParam(), device_class::cctv);
  expectRefused();
}

INSTANTIATE_TEST_SUITE_P(
    Readings, RefusedCctv,
    ::testing::Values(
        "select * from CCTV_TriggerAction where TA_ID = 5", "exec TA_FetchAllEventTypeInfo",
        "select * from TA_EventFilters order by FilterIndex", doorEventsReading,
        "select SwitcherID, Name, INI_FILE from CCTV_Switchers",
        "select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
        "select nOutputs from CCTV_Switchers where SwitcherId = 11",
        "CCTV_FetchCameraNoPresets 2, 11"));

class RefusedDvr : public HalfReadTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(RefusedDvr, SaysSoAndWritesNothing) {
  openBroken(GetParam(), device_class::dvr);
  expectRefused();
}

INSTANTIATE_TEST_SUITE_P(
    Readings, RefusedDvr,
    ::testing::Values(
        "select * from IntegratedDeviceTriggers where TriggerID = 8",
        "exec TA_FetchAllEventTypeInfo", "select * from TA_EventFilters order by FilterIndex",
        doorEventsReading, "select * from IntegratedDeviceclasses",
        "select ID, DVRName from DVR_Config",
        "select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = 21 order by "
        "CameraIndex",
        "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 21 And CameraIndex = 2 "
        "order by PresetName",
        "exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=7, @workstationid=3",
        "select ID, Description from DVR_ViewGroups order by Description",
        "select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 300"));

// What is read for the other class, for another list than that of a stored value, or not saved.
class NotRefused : public HalfReadTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(NotRefused, ACctvTriggerIsSavedAsItWasStored) {
  openBroken(GetParam(), device_class::cctv);
  expectSaved(cctvAsStored);
}

INSTANTIATE_TEST_SUITE_P(
    Readings, NotRefused,
    ::testing::Values("select * from IntegratedDeviceclasses",
                      "select count(EventID) from Zorn_EventDefinitions",
                      "select * from Zorn_EventDefinitions order by EventID",
                      "CCTV_FetchCameraNoPresets 1, 11", "select ID, DVRName from DVR_Config",
                      "EXECUTE DVR_Getvendorinfo 21",
                      "select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 5"));

TEST_F(HalfReadTest, AFailingVendorQueryDoesNotBlockARecorderTrigger) {
  openBroken("EXECUTE DVR_Getvendorinfo 21", device_class::dvr);
  expectSaved(dvrAsStored);
}

TEST_F(HalfReadTest, FailingResourceTextsDoNotBlockTheSave) {
  services->failing = {"GetResourceString"};
  editDvr();
  EXPECT_FALSE(screen.boxes.empty());
  services->failing.clear();
  screen.boxes.clear();
  journal.clear();
  expectSaved(dvrAsStored);
}

TEST_F(HalfReadTest, AFiftySecondRecordOfTheCatalogueDoesNotBlockTheSave) {
  Result types{{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
               {{"Door", 1, "DoorEvents", 100, 199}}};
  while (types.rows.size() < 52) types.rows.push_back({"Other", 7, "OtherEvents", 20000, 20001});
  database->answer("exec TA_FetchAllEventTypeInfo", types);
  editCctv();
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("Module1.InitEventTypeInfoArray: "));
  screen.boxes.clear();
  journal.clear();
  expectSaved(cctvAsStored);
}

TEST_F(HalfReadTest, AnotherTableOfTheCategoryDoesNotBlockTheSave) {
  for (const int eventId : {5001, 10001}) {
    SCOPED_TRACE(eventId);
    storeEvent(eventId);
    openBroken(eventId == 5001 ? "exec pav_FetchInstalledIntegratedEvents" : alarmEventsReading,
               device_class::cctv);
    EXPECT_EQ(combo("cmbEvents").selectedData(), eventId);
    button("cmdOK").userClick();
    EXPECT_FALSE(editor->isOpen());
    EXPECT_EQ(journal.of("sql: exec CCTV_Update_TA").size(), 1U);
  }
}

TEST_F(HalfReadTest, AnotherTableOfTheCategoryKeepsTheEventThroughLaterClicks) {
  storeEvent(10001);
  database->fail(alarmEventsReading, "no rights");
  editCctv();
  tickFilter(1);
  EXPECT_EQ(combo("cmbEvents").selectedData(), 10001);
  tickFilter(0);
  EXPECT_EQ(combo("cmbEvents").listIndex(), -1);
}

TEST_F(HalfReadTest, AListThatBrokeOffBehindTheStoredValueDoesNotBlockTheSave) {
  database->failFetch(doorEventsReading, 2);
  database->failFetch("select ID, Description from DVR_ViewGroups order by Description", 2);
  editDvr();
  EXPECT_EQ(screen.boxes.size(), 2U);
  screen.boxes.clear();
  journal.clear();
  expectSaved(dvrAsStored);
}

TEST_F(HalfReadTest, AListThatBrokeOffBeforeTheStoredValueIsRefused) {
  database->failFetch("select ID, Description from DVR_ViewGroups order by Description", 1);
  editDvr();
  expectRefused();
}

TEST_F(HalfReadTest, AListThatWasReadWholeMayHaveLostTheStoredValue) {
  answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 99, 3, 33, true, 0});
  editCctv();
  EXPECT_TRUE(editor->SaveTriggerAction());
}

TEST_F(HalfReadTest, AnAlarmWithoutCameraDoesNotNeedTheCameraList) {
  answerCctvTrigger(5, {5, "1.2.3", 101, 11, 2, 0, 0, 0, false, 21});
  database->fail("select nOutputs from CCTV_Switchers where SwitcherId = 11", "no rights");
  openBroken("select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
             device_class::cctv);
  expectSaved("exec CCTV_Update_TA 5, 11, 0, 0, 0, 101, '1.2.3', 2, '101', '1.2.3', 21, False");
}

TEST_F(HalfReadTest, AnAlarmThatKeepsACameraNeedsTheCameraList) {
  answerCctvTrigger(5, {5, "1.2.3", 101, 11, 2, 2, 3, 33, false, 21});
  openBroken("select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
             device_class::cctv);
  expectRefused();
}

class RefusedNewer : public HalfReadTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(RefusedNewer, HalfAWriteIsNotSent) {
  storeEvent(80003);
  openBroken(GetParam(), device_class::dvr);
  expectRefused();
}

INSTANTIATE_TEST_SUITE_P(Readings, RefusedNewer,
                         ::testing::Values("select count(EventID) from Zorn_EventDefinitions",
                                           "select * from Zorn_EventDefinitions order by EventID",
                                           newerCategoryReading));

TEST_F(HalfReadTest, AnEventLostByALaterClickIsNotHalfWritten) {
  editDvr();
  database->fail(doorEventsReading, "no rights");
  tickFilter(0);
  EXPECT_EQ(combo("cmbEvents").listIndex(), -1);
  database->mend();
  expectRefused();
  tickFilter(0);
  control<ComboBox>("cmbEvents").setListIndex(0);
  screen.boxes.clear();
  expectSaved("pav_UpdateDeviceTrigger 8, '1.2.3', 100, 300, 1");
}

TEST_F(HalfReadTest, ATriggerThatIsGoneWasRead) {
  database->fail("select ID, DVRName from DVR_Config", "no rights");
  openEditor({77, device_class::dvr});
  screen.boxes.clear();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(screen.boxTexts(), IsEmpty());
}

TEST_F(HalfReadTest, ATriggerWithoutItsActionRowWasRead) {
  database->answer("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 300",
                   {{"ID_DVR_Config"}, {}});
  openBroken("select ID, Description from DVR_ViewGroups order by Description", device_class::dvr);
  expectSaved("DVR_UpdateAction 300, 21, 1, 15, 15, 1, 0, 0, 0");
}

}  // namespace
}  // namespace pelorin::test
