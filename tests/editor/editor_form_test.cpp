// The editor as a whole: opening, buttons, closing.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class EditorFormTest : public EditorTest {
 protected:
  bool visible(const std::string& name) { return control<Control>(name).visible(); }

  void answerStored() {
    answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 2, 3, 33, true, 0});
    answerDvrTrigger(8, 101, 300, device_class::dvr);
    answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 52, 61});
  }
};

TEST_F(EditorFormTest, HasItsDesignCaption) {
  frmTriggerAction form{module, catalogue, {}, [] {}, {}};
  EXPECT_EQ(form.name(), "frmTriggerAction");
  EXPECT_EQ(form.caption(), "Trigger Action");
}

TEST_F(EditorFormTest, LoadAsksForTheHardwareThenTheCacheThenTheForm) {
  openEditor();
  ASSERT_GE(journal.lines().size(), 4U);
  EXPECT_EQ(journal.lines()[0], "host: ZornIsVn8HardwareSupportEnabled");
  EXPECT_EQ(journal.lines()[1], "sql: select count(EventID) from Zorn_EventDefinitions");
  EXPECT_TRUE(editor->state().m_bVn8HardwareSupport);
}

TEST_F(EditorFormTest, EditModeReadsTheTriggerBeforeTheTabs) {
  answerStored();
  editDvr();
  const std::vector<std::string> statements = database->statements();
  ASSERT_GE(statements.size(), 4U);
  EXPECT_EQ(statements[2], "select * from IntegratedDeviceTriggers where TriggerID = 8");
  EXPECT_EQ(statements[3], "exec TA_FetchAllEventTypeInfo");
}

TEST_F(EditorFormTest, TheActionTabLoadsClassesThenDvrThenCctv) {
  openEditor();
  const auto at = [this](const std::string& sql) {
    const auto& lines = journal.lines();
    return std::find(lines.begin(), lines.end(), "sql: " + sql) - lines.begin();
  };
  EXPECT_LT(at("select * from IntegratedDeviceclasses"), at("select ID, DVRName from DVR_Config"));
  EXPECT_LT(at("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 0"),
            at("select SwitcherID, Name, INI_FILE from CCTV_Switchers"));
  EXPECT_EQ(journal.of("sql: select * from CCTV_TriggerAction").size(), 0U);
}

TEST_F(EditorFormTest, AddModeShowsTheLocationListAndTheEventList) {
  openEditor();
  EXPECT_EQ(editor->caption(), "Add Trigger Action");
  for (const char* name : {"lvwLocation", "cmdAddLocation", "cmdDeleteLocation", "lvwEvents"}) {
    EXPECT_TRUE(visible(name)) << name;
  }
  for (const char* name : {"txtLocation", "cmdSingleLocation", "fraEditOverlay"}) {
    EXPECT_FALSE(visible(name)) << name;
  }
  EXPECT_TRUE(combo("cmbActionDeviceClass").enabled());
}

TEST_F(EditorFormTest, AddModeShowsTheCctvPanel) {
  openEditor();
  EXPECT_EQ(combo("cmbActionDeviceClass").selectedData(), 999);
  EXPECT_TRUE(visible("fraCCTVAction"));
  EXPECT_FALSE(visible("fraDVRAction"));
}

TEST_F(EditorFormTest, EditModeShowsTheSingleLocationAndTheOverlay) {
  answerStored();
  editCctv();
  EXPECT_EQ(editor->caption(), "Edit Trigger Action");
  for (const char* name : {"lvwLocation", "cmdAddLocation", "cmdDeleteLocation"}) {
    EXPECT_FALSE(visible(name)) << name;
  }
  for (const char* name : {"txtLocation", "cmdSingleLocation", "fraEditOverlay", "cmbEvents"}) {
    EXPECT_TRUE(visible(name)) << name;
  }
  EXPECT_FALSE(combo("cmbActionDeviceClass").enabled());
}

TEST_F(EditorFormTest, Class999ReadsTheCctvTable) {
  answerStored();
  editCctv(5);
  EXPECT_EQ(editor->state().m_ActionID, 5);
  EXPECT_EQ(textBox("txtLocation").text(), "1.2.3");
  EXPECT_EQ(combo("cmbEvents").selectedData(), 101);
  EXPECT_EQ(combo("cmbActionDeviceClass").selectedData(), 999);
  EXPECT_TRUE(visible("fraCCTVAction"));
  EXPECT_EQ(combo("cmbCCTVCameras").selectedData(), 2);
  EXPECT_EQ(journal.of("sql: select * from IntegratedDeviceTriggers").size(), 0U);
}

TEST_F(EditorFormTest, AnyOtherClassReadsTheIntegratedTriggers) {
  answerStored();
  for (const std::int16_t asked : {device_class::dvr, std::int16_t{0}, std::int16_t{5}}) {
    openEditor({8, asked});
    EXPECT_EQ(editor->state().m_ActionID, 300);
    EXPECT_EQ(combo("cmbActionDeviceClass").selectedData(), 1);
    EXPECT_TRUE(visible("fraDVRAction"));
    EXPECT_FALSE(visible("fraCCTVAction"));
    EXPECT_EQ(combo("cmbDVRCamera").selectedData(), 2);
    editor->unload();
  }
}

TEST_F(EditorFormTest, BothPanelsAreLoadedWithTheSameId) {
  answerStored();
  editDvr();
  EXPECT_EQ(journal.of("sql: select * from CCTV_TriggerAction where TA_ID = 300").size(), 1U);
}

TEST_F(EditorFormTest, AVanishedTriggerOpensEmptyAndCannotBeSaved) {
  openEditor({77, device_class::dvr});
  EXPECT_EQ(editor->caption(), "Edit Trigger Action");
  EXPECT_EQ(textBox("txtLocation").text(), "");
  EXPECT_FALSE(combo("cmbActionDeviceClass").enabled());
  EXPECT_EQ(combo("cmbActionDeviceClass").listIndex(), -1);
  EXPECT_FALSE(visible("fraCCTVAction"));
  EXPECT_FALSE(visible("fraDVRAction"));
  editor->setSingleLocation("1.2.3 - Door", "1.2.3");
  journal.clear();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EditorFormTest, AVanishedCctvTriggerDoesNotOverwriteTheDvrTriggerOfThatNumber) {
  answerStored();
  openEditor({8, device_class::cctv});
  journal.clear();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EditorFormTest, ATriggerOfAForeignClassCannotBeSaved) {
  answerDvrTrigger(8, 101, 300, 5);
  editDvr();
  EXPECT_EQ(combo("cmbActionDeviceClass").listIndex(), -1);
  journal.clear();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EditorFormTest, AnEmptyClassTableLeavesARecorderTriggerUnsaved) {
  answerStored();
  database->answer("select * from IntegratedDeviceclasses",
                   {{"IntegratedDeviceClassId", "Classname"}, {}});
  editDvr();
  journal.clear();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EditorFormTest, AFailureOfTheOtherClassesPanelDoesNotBlockTheSave) {
  answerStored();
  database->fail("select ID, DVRName from DVR_Config");
  editCctv();
  EXPECT_EQ(screen.boxes.size(), 1U);
  EXPECT_TRUE(editor->SaveTriggerAction());
}

TEST_F(EditorFormTest, AFailureWhileAddingDoesNotBlockTheSave) {
  database->fail("select ID, DVRName from DVR_Config");
  openEditor();
  addLocations(1);
  EXPECT_TRUE(editor->SaveTriggerAction());
}

TEST_F(EditorFormTest, WithoutServicesTheLoadIsReportedAndTheFormOpensUnsavable) {
  answerStored();
  module.setNTConnection(nullptr);
  editCctv();
  EXPECT_TRUE(editor->isOpen());
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("frmTriggerAction.Form_Load: Line: ")));
  module.setNTConnection(services);
  EXPECT_FALSE(editor->SaveTriggerAction());
}

TEST_F(EditorFormTest, WithoutAConnectionEachStepReportsAndNothingCrashes) {
  module.setDBConnection(nullptr);
  openEditor();
  EXPECT_TRUE(editor->isOpen());
  EXPECT_GE(screen.boxes.size(), 5U);
  EXPECT_FALSE(editor->SaveTriggerAction());
}

TEST_F(EditorFormTest, OkSavesReloadsTheSummaryAndCloses) {
  openEditor();
  addLocations(1);
  screen.pointers.clear();
  button("cmdOK").userClick();
  EXPECT_FALSE(editor->isOpen());
  EXPECT_EQ(reloads, 1);
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
}

TEST_F(EditorFormTest, OkWithAFailingSaveStaysOpenAndRestoresThePointer) {
  openEditor();
  screen.setMousePointer(MousePointer::Default);
  button("cmdOK").userClick();
  EXPECT_TRUE(editor->isOpen());
  EXPECT_EQ(reloads, 0);
  EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
  EXPECT_EQ(screen.pointers.back(), MousePointer::Default);
}

TEST_F(EditorFormTest, OkRestoresThePointerThatWasThere) {
  openEditor();
  screen.setMousePointer(MousePointer::Hourglass);
  button("cmdOK").userClick();
  EXPECT_EQ(screen.mousePointer(), MousePointer::Hourglass);
}

TEST_F(EditorFormTest, ApplyTwiceInAddModeWritesTheRowsTwice) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  journal.clear();
  screen.pointers.clear();
  button("cmdApply").userClick();
  button("cmdApply").userClick();
  EXPECT_TRUE(editor->isOpen());
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 2U);
  EXPECT_EQ(reloads, 2);
  EXPECT_EQ(editor->state().m_TriggerID, 0);
  EXPECT_THAT(screen.pointers, IsEmpty());
}

TEST_F(EditorFormTest, ApplyInEditModeUpdatesEachTime) {
  answerStored();
  editCctv();
  journal.clear();
  button("cmdApply").userClick();
  button("cmdApply").userClick();
  EXPECT_EQ(journal.of("sql: exec CCTV_Update_TA").size(), 2U);
  EXPECT_TRUE(editor->isOpen());
}

TEST_F(EditorFormTest, CancelClosesAtOnceWithNothingSavedAndNoQuestion) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  journal.clear();
  button("cmdCancel").userClick();
  EXPECT_FALSE(editor->isOpen());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EditorFormTest, EscapeAndTheTitleBarsCloseAreCancel) {
  openEditor();
  editor->userKeyDown(key_code::escape);
  EXPECT_FALSE(editor->isOpen());
  openEditor();
  editor->userClose();
  EXPECT_FALSE(editor->isOpen());
}

TEST_F(EditorFormTest, EnterIsOkAfterTheFocusedBoxWasLeft) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  chooseClass(device_class::dvr);
  editor->userFocus(&textBox("txtDVRAlarmDuration"));
  textBox("txtDVRAlarmDuration").userText("1000");
  journal.clear();
  editor->userKeyDown(key_code::enter);
  EXPECT_FALSE(editor->isOpen());
  EXPECT_THAT(writes().front(), HasSubstr("AlarmDuration=300"));
}

TEST_F(EditorFormTest, ChangingTheTabLeavesTheBox) {
  openEditor();
  chooseClass(device_class::dvr);
  editor->userFocus(&textBox("txtDVRAlarmDuration"));
  textBox("txtDVRAlarmDuration").userText("2");
  editor->userFocus(&control<TabControl>("SSTab1"));
  EXPECT_EQ(textBox("txtDVRAlarmDuration").text(), "5");
}

TEST_F(EditorFormTest, HelpAsksForTheTopicOfTheTabInFront) {
  openEditor();
  journal.clear();
  button("cmdHelp").userClick();
  control<TabControl>("SSTab1").setTab(1);
  button("cmdHelp").userClick();
  EXPECT_THAT(journal.lines(), ElementsAre("host: ShowHelp(218)", "host: ShowHelp(53)"));
}

TEST_F(EditorFormTest, HelpThatFailsIsReportedUnderTheHandlersName) {
  openEditor();
  services->failing.insert("ShowHelp");
  button("cmdHelp").userClick();
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("frmTriggerAction.cmdHelp_Click: ")));
}

TEST_F(EditorFormTest, TheFirstTabIsInFrontAtEachOpening) {
  openEditor();
  control<TabControl>("SSTab1").setTab(1);
  editor->unload();
  openEditor();
  EXPECT_EQ(control<TabControl>("SSTab1").tab(), 0);
}

TEST_F(EditorFormTest, AReloadThatFailsAfterTheRowsStandIsReportedAndTheSaveIsTrue) {
  openEditor();
  addLocations(1);
  reloadFails = true;
  button("cmdOK").userClick();
  EXPECT_FALSE(editor->isOpen());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, AllOf(StartsWith("frmTriggerAction.SaveTriggerAction: "),
                                          HasSubstr("the summary is gone")));
}

TEST_F(EditorFormTest, ASaveThatFailsDoesNotReloadTheSummary) {
  openEditor();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_EQ(reloads, 0);
}

TEST_F(EditorFormTest, AHostThatClosesTheEditorDuringASaveCrashesNothing) {
  openEditor();
  addLocations(0);
  screen.duringBox = [this](const BoxRequest&) { editor->unload(); };
  button("cmdOK").userClick();
  EXPECT_FALSE(editor->isOpen());
}

TEST_F(EditorFormTest, ASecondSaveCannotEnterARunningOne) {
  openEditor();
  bool second = true;
  screen.duringBox = [&](const BoxRequest&) { second = editor->SaveTriggerAction(); };
  editor->SaveTriggerAction();
  EXPECT_FALSE(second);
  EXPECT_EQ(screen.boxes.size(), 1U);
}

TEST_F(EditorFormTest, TheHiddenPanelIsNotReadByTheSave) {
  openEditor();
  addLocations(1);
  combo("cmbDVRViewGroups").setListIndex(-1);
  combo("cmbDVRUnit").setListIndex(-1);
  EXPECT_TRUE(editor->SaveTriggerAction());
  combo("cmbCCTVMonitors").setListIndex(-1);
  combo("cmbDVRUnit").setListIndex(0);
  combo("cmbDVRViewGroups").setListIndex(0);
  chooseClass(device_class::dvr);
  EXPECT_TRUE(editor->SaveTriggerAction());
}

}  // namespace
}  // namespace pelorin::test
