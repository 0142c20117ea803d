// The three windows together: one of each, who owns whom, who reaches whom.
#include "editor/frm_trigger_action.h"
#include "tests/component/component_fixture.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::SizeIs;
using ::testing::StartsWith;

using RaiseForm = ComponentTest;
using Windows = ComponentTest;

TEST_F(RaiseForm, AsksForTheRightToUseTheComponent) {
  component.RaiseForm(hostWindow);
  EXPECT_THAT(journal.lines(), Contains("host: Security(91, Pelorin - Use)"));
}

TEST_F(RaiseForm, ShowsTheSummaryOwnedByTheHost) {
  component.RaiseForm(hostWindow);
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary"));
  EXPECT_EQ(screen.owners["frmTASummary"], hostWindow);
  EXPECT_THAT(screen.boxes, IsEmpty());
}

TEST_F(RaiseForm, ShowsTheSummaryWithoutOwnerWhenTheHostGaveNone) {
  component.RaiseForm(0);
  EXPECT_EQ(screen.owners["frmTASummary"], 0U);
}

TEST_F(RaiseForm, RefusedShowsText3575AndNoWindow) {
  services->permitted = false;
  services->texts[3575] = "You may not use this.";
  component.RaiseForm(hostWindow);
  ASSERT_THAT(screen.boxTexts(), ElementsAre("You may not use this."));
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Information);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::Ok);
  EXPECT_THAT(openForms(), IsEmpty());
}

TEST_F(RaiseForm, RefusedShowsTheReportAloneWhenTheTextCannotBeHad) {
  services->permitted = false;
  services->failing = {"GetResourceString"};
  component.RaiseForm(hostWindow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("MPublic: GRS: Line: ")));
}

TEST_F(RaiseForm, RefusedShowsTheEmptyTextThatTheHostAnswers) {
  services->permitted = false;
  services->texts[3575] = "";
  component.RaiseForm(hostWindow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(""));
}

TEST_F(RaiseForm, ShowsTheHourglassDuringThePermissionCheck) {
  services->permitted = false;
  component.RaiseForm(hostWindow);
  EXPECT_THAT(screen.pointers,
              ElementsAre(MousePointer::Hourglass, MousePointer::Default, MousePointer::Default));
}

TEST_F(RaiseForm, AsksForText3575WithoutSubstitutions) {
  services->permitted = false;
  component.RaiseForm(hostWindow);
  EXPECT_THAT(journal.of("host: "),
              ElementsAre("Security(91, Pelorin - Use)", "GetResourceString(3575)"));
}

TEST_F(RaiseForm, EndsWithTheDefaultPointerWhetherGrantedOrRefused) {
  for (const bool permitted : {true, false}) {
    services->permitted = permitted;
    screen.setMousePointer(MousePointer::Hourglass);
    component.RaiseForm(hostWindow);
    EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
  }
}

TEST_F(RaiseForm, EndsWithTheDefaultPointerAfterAnError) {
  screen.windowsFail = true;
  screen.setMousePointer(MousePointer::Hourglass);
  EXPECT_THROW(component.RaiseForm(hostWindow), RunTimeError);
  EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
}

TEST_F(RaiseForm, WorksAgainAfterAWindowCouldNotBeMade) {
  screen.windowsFail = true;
  EXPECT_THROW(component.RaiseForm(hostWindow), RunTimeError);
  EXPECT_THAT(openForms(), IsEmpty());
  screen.windowsFail = false;
  component.RaiseForm(hostWindow);
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary"));
}

TEST_F(RaiseForm, IsNotShownWhenItsControlsCouldNotBeMade) {
  screen.controlsFail = true;
  EXPECT_THROW(component.RaiseForm(hostWindow), RunTimeError);
  EXPECT_THAT(openForms(), IsEmpty());
  EXPECT_THAT(screen.windowEvents, ElementsAre("create frmTASummary", "destroy frmTASummary"));
}

TEST_F(RaiseForm, TwiceAsksAgainAndBringsTheSummaryToTheFrontWithoutReload) {
  component.RaiseForm(hostWindow);
  journal.clear();
  screen.windowEvents.clear();
  component.RaiseForm(hostWindow);
  EXPECT_THAT(journal.lines(), ElementsAre("host: Security(91, Pelorin - Use)"));
  EXPECT_THAT(screen.windowEvents, ElementsAre("raise frmTASummary"));
  EXPECT_THAT(openForms(), SizeIs(1));
}

TEST_F(RaiseForm, RefusedWhileTheSummaryIsOpenKeepsTheWindow) {
  component.RaiseForm(hostWindow);
  services->permitted = false;
  component.RaiseForm(hostWindow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre("#3575"));
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary"));
}

TEST_F(RaiseForm, WithoutServicesReportsEachStepAndOpensNothing) {
  component.module().setNTConnection(nullptr);
  component.RaiseForm(hostWindow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("Module1.MyPermissionGranted: Line: "),
                                             StartsWith("MPublic: GRS: Line: ")));
  EXPECT_THAT(environment.lines, SizeIs(2));
  EXPECT_THAT(openForms(), IsEmpty());
}

TEST_F(RaiseForm, WithoutConnectionReportsAndShowsAnEmptySummary) {
  component.module().setDBConnection(nullptr);
  component.RaiseForm(hostWindow);
  EXPECT_THAT(screen.boxTexts(), Contains(HasSubstr("Object variable or With block variable")));
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_FALSE(on<Button>("frmTASummary", "cmdAddEdit(1)").enabled());
  EXPECT_FALSE(on<Button>("frmTASummary", "cmdDelete").enabled());
}

TEST_F(RaiseForm, MakesItsOwnerTheOwnerOfBoxesUnlessItHasNone) {
  component.RaiseForm(hostWindow);
  EXPECT_EQ(screen.hostWindow, hostWindow);
  component.RaiseForm(0);
  EXPECT_EQ(screen.hostWindow, hostWindow);
}

TEST_F(RaiseForm, UsesTheServicesThatWereSetLast) {
  Journal otherJournal;
  auto other = std::make_shared<RecordingServices>(otherJournal);
  other->permitted = false;
  component.module().setNTConnection(other);
  component.RaiseForm(hostWindow);
  EXPECT_THAT(journal.of("host: "), IsEmpty());
  EXPECT_THAT(otherJournal.of("host: "), SizeIs(2));
}

TEST_F(Windows, EditorIsOwnedByTheSummary) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary", "frmTriggerAction"));
  EXPECT_EQ(screen.owners["frmTriggerAction"], form("frmTASummary").hwnd());
}

TEST_F(Windows, AddWhileTheEditorIsOpenKeepsItsTrigger) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(1)");
  const auto* editor = screen.open<frmTriggerAction>("frmTriggerAction");
  const std::int32_t trigger = editor->state().m_TriggerID;
  ASSERT_GT(trigger, 0);
  screen.windowEvents.clear();
  press("frmTASummary", "cmdAddEdit(0)");
  EXPECT_EQ(screen.open<frmTriggerAction>("frmTriggerAction"), editor);
  EXPECT_EQ(editor->state().m_TriggerID, trigger);
  EXPECT_EQ(editor->caption(), "Edit Trigger Action");
  EXPECT_THAT(screen.windowEvents, ElementsAre("raise frmTriggerAction"));
}

TEST_F(Windows, EditorThatWasClosedOpensForTheNextTrigger) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(1)");
  press("frmTriggerAction", "cmdCancel");
  press("frmTASummary", "cmdAddEdit(0)");
  EXPECT_EQ(screen.open<frmTriggerAction>("frmTriggerAction")->state().m_TriggerID, 0);
  EXPECT_EQ(form("frmTriggerAction").caption(), "Add Trigger Action");
}

// Presses the button while the system refuses windows, then their controls; each time the report
// stands under the button's procedure, and nothing new is open.
struct Refusals : ComponentTest {
  void expectReported(const std::string& formName, const std::string& button,
                      const std::string& procedure) {
    const std::vector<std::string> before = openForms();
    for (bool* const refused : {&screen.windowsFail, &screen.controlsFail}) {
      screen.boxes.clear();
      *refused = true;
      press(formName, button);
      *refused = false;
      EXPECT_THAT(screen.boxTexts(),
                  Contains(AllOf(StartsWith(procedure + ": Line: "), EndsWith(" :Out of memory")))
                      .Times(1));
      EXPECT_EQ(openForms(), before);
    }
  }
};

TEST_F(Refusals, OfTheEditorAreReportedByTheSummarysButton) {
  component.RaiseForm(hostWindow);
  expectReported("frmTASummary", "cmdAddEdit(0)", "frmTASummary.cmdAddEdit_Click");
  press("frmTASummary", "cmdAddEdit(0)");
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary", "frmTriggerAction"));
}

TEST_F(Refusals, OfThePickerAreReportedByTheEditorsButton) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  expectReported("frmTriggerAction", "cmdAddLocation", "frmTriggerAction.cmdAddLocation_Click");
  press("frmTriggerAction", "cmdAddLocation");
  EXPECT_THAT(openForms(), SizeIs(3));
}

TEST_F(Windows, PickerIsOwnedByTheEditor) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  press("frmTriggerAction", "cmdAddLocation");
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary", "frmTriggerAction", "FLocation"));
  EXPECT_EQ(screen.owners["FLocation"], form("frmTriggerAction").hwnd());
}

TEST_F(Windows, ClosedWindowsLeaveTheirOwnersActive) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  press("frmTriggerAction", "cmdAddLocation");
  const WindowHandle editor = form("frmTriggerAction").hwnd();
  const WindowHandle summary = form("frmTASummary").hwnd();
  press("FLocation", "cmdMain(1)");
  press("frmTriggerAction", "cmdCancel");
  press("frmTASummary", "cmdClose");
  EXPECT_EQ(screen.activated["FLocation"], editor);
  EXPECT_EQ(screen.activated["frmTriggerAction"], summary);
  EXPECT_EQ(screen.activated["frmTASummary"], hostWindow);
}

TEST_F(Windows, PickerOpensInTheModeOfTheButton) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  press("frmTriggerAction", "cmdAddLocation");
  EXPECT_EQ(on<Button>("FLocation", "cmdMain(1)").text(), "Close");
  form("frmTriggerAction").unload();
  press("frmTASummary", "cmdAddEdit(1)");
  press("frmTriggerAction", "cmdSingleLocation");
  EXPECT_EQ(on<Button>("FLocation", "cmdMain(1)").text(), "Cancel");
}

TEST_F(Windows, PickingWhileThePickerIsOpenBringsItToTheFront) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  press("frmTriggerAction", "cmdAddLocation");
  screen.windowEvents.clear();
  press("frmTriggerAction", "cmdAddLocation");
  EXPECT_THAT(screen.windowEvents, ElementsAre("raise FLocation"));
  EXPECT_THAT(openForms(), SizeIs(3));
}

TEST_F(Windows, ClosingTheSummaryUnloadsThePickerThenTheEditorAndNothingElse) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  press("frmTriggerAction", "cmdAddLocation");
  journal.clear();
  screen.windowEvents.clear();
  press("frmTASummary", "cmdClose");
  EXPECT_THAT(screen.windowEvents,
              ElementsAre("destroy FLocation", "destroy frmTriggerAction", "destroy frmTASummary"));
  EXPECT_THAT(journal.lines(), IsEmpty());
  EXPECT_THAT(openForms(), IsEmpty());
}

TEST_F(Windows, PickerGoesWithItsEditorWhileTheHostIsAskedForTheNewerHardware) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  services->duringCall = [this](const std::string&) {
    services->duringCall = nullptr;
    form("frmTriggerAction").unload();
  };
  press("frmTriggerAction", "cmdAddLocation");
  screen.collect();
  EXPECT_THAT(openForms(), ElementsAre("frmTASummary"));
  EXPECT_THAT(screen.boxes, IsEmpty());
  EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
}

TEST_F(Windows, PickerGoesWithItsEditorWhileAReportIsOnTheScreen) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(0)");
  services->failing.insert("ZornIsVn8HardwareSupportEnabled");
  screen.duringBox = [this](const BoxRequest&) { form("frmTASummary").unload(); };
  press("frmTriggerAction", "cmdAddLocation");
  screen.collect();
  EXPECT_THAT(openForms(), IsEmpty());
  EXPECT_THAT(screen.windowEvents, IsSupersetOf({"destroy FLocation", "destroy frmTriggerAction"}));
  EXPECT_THAT(screen.boxes, SizeIs(1));
}

TEST_F(Windows, EverythingOpensAgainAfterEverythingWasClosed) {
  for (int round = 0; round < 3; ++round) {
    component.RaiseForm(hostWindow);
    press("frmTASummary", "cmdAddEdit(0)");
    press("frmTriggerAction", "cmdAddLocation");
    EXPECT_THAT(openForms(), SizeIs(3));
    form("frmTASummary").unload();
    screen.collect();
  }
}

TEST_F(Windows, SaveReloadsTheSummary) {
  component.RaiseForm(hostWindow);
  press("frmTASummary", "cmdAddEdit(1)");
  const int rows = grid().rows();
  database->execute("exec CCTV_Insert_TA 1, 1, 1, 0, 1, N'1', 1, N'', N'', 0, 0");
  press("frmTriggerAction", "cmdOK");
  EXPECT_EQ(grid().rows(), rows + 1);
}

TEST_F(Windows, UnloadWithTheComponent) {
  {
    Component other(screen, environment);
    other.module().setNTConnection(services);
    other.module().setDBConnection(database);
    other.RaiseForm(0);
    EXPECT_THAT(openForms(), SizeIs(1));
  }
  EXPECT_THAT(openForms(), IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
