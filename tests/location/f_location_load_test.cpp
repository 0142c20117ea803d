// Opening the picker: its steps, its pointer, its owner.
#include "tests/location/picker_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class PickerLoadTest : public PickerTest {};

TEST_F(PickerLoadTest, StepsInOrder) {
  around.services->newerHardware = true;
  around.services->enableCustomize = true;
  open();
  const auto& lines = around.journal.lines();
  ASSERT_GT(lines.size(), 3U);
  EXPECT_EQ(lines[0], "host: ZornIsVn8HardwareSupportEnabled");
  EXPECT_EQ(lines[1], "sql: SELECT * From Servers");
  EXPECT_EQ(lines.back(), "host: EnableCustomize");
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PickerLoadTest, HourglassWhileLoadingThenThePointerFromBefore) {
  open();
  EXPECT_THAT(around.screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
}

TEST_F(PickerLoadTest, APointerThatWasTheHourglassBeforeStays) {
  around.screen.setMousePointer(MousePointer::Hourglass);
  open();
  EXPECT_EQ(around.screen.mousePointer(), MousePointer::Hourglass);
}

TEST_F(PickerLoadTest, TheEditorOwnsThePickerUntilItIsUnloaded) {
  std::map<std::string, WindowHandle>& owners = around.screen.owners;
  open();
  EXPECT_EQ(owners["FLocation"], 0x77U);
  picker.unload();
  EXPECT_EQ(owners["FLocation"], 0U);
}

TEST_F(PickerLoadTest, OwnerFromBeforeComesBackAfterReopeningWhileOpen) {
  picker.setParent(target);
  picker.setMode("multilocation");
  around.screen.show(picker, 0x55);
  open();
  picker.unload();
  EXPECT_EQ(around.screen.owners["FLocation"], 0x55U);
}

TEST_F(PickerLoadTest, PicturesAreTheCellsOfTheStrip) {
  open();
  EXPECT_EQ(picker.tvTree.images().cells, 69);
  EXPECT_EQ(picker.tvTree.images().pixels[16], 0xFF000002U);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PickerLoadTest, MissingPicturesAreReportedOnceAndTheTreeStands) {
  around.environment.pictures.clear();
  open();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("FLocation.Form_Load: Line: [1-9][0-9]* :File not "
                                                "found: C:.Component.Graphics.pcDetail.bmp")));
  EXPECT_EQ(picker.tvTree.images().cells, 0);
  EXPECT_EQ(node("TT1").text, "Front");
}

TEST_F(PickerLoadTest, PicturesThatCannotBeReadAreReportedOnceAndTheTreeStands) {
  around.environment.unreadable.insert(pictureFile);
  open();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("FLocation.Form_Load: Line: [1-9][0-9]* :Path/File "
                                                "access error: .*pcDetail.bmp")));
  EXPECT_EQ(picker.tvTree.images().cells, 0);
  EXPECT_EQ(node("TT1").text, "Front");
}

TEST_F(PickerLoadTest, TooFewPicturesAreReportedOnceAndThoseThatAreThereShow) {
  around.environment.pictures[pictureFile] = stripPicture(68);
  open();
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex(
          "FLocation.Form_Load: Line: [1-9][0-9]* :Invalid picture: \"pcDetail.bmp\" has 68 "
          "of 69 pictures")));
  EXPECT_EQ(picker.tvTree.images().cells, 68);
  EXPECT_EQ(node("TT1").text, "Front");
}

TEST_F(PickerLoadTest, MorePicturesAreFine) {
  around.environment.pictures[pictureFile] = stripPicture(80);
  open();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(picker.tvTree.images().cells, 80);
}

TEST_F(PickerLoadTest, FailedTreeShowsOneBoxWithOkOnlyAndKeepsWhatStands) {
  around.database->fail("EXECUTE sp_FetchServerPorts 1");
  open();
  ASSERT_EQ(around.screen.boxes.size(), 2U);
  EXPECT_THAT(around.screen.boxes[0].text,
              MatchesRegex("RefreshHardware: Line: [1-9][0-9]* :statement failed"));
  EXPECT_EQ(around.screen.boxes[1].text, "error in refreshhardware");
  EXPECT_EQ(around.screen.boxes[1].icon, BoxIcon::None);
  EXPECT_EQ(around.screen.boxes[1].buttons, BoxButtons::Ok);
  EXPECT_NE(picker.tvTree.find("MA1"), nullptr);
  EXPECT_TRUE(picker.isOpen());
}

TEST_F(PickerLoadTest, NoSelectionAtFirst) {
  open();
  EXPECT_EQ(picker.tvTree.selectedNode(), nullptr);
  EXPECT_FALSE(picker.cmdMain[0].enabled());
  EXPECT_EQ(picker.lblLocation.text(), "<None>");
}

TEST_F(PickerLoadTest, NewerFamilyIsListedWhenTheHostSupportsIt) {
  around.services->newerHardware = true;
  open();
  EXPECT_NE(picker.tvTree.find("Zorn1"), nullptr);
}

TEST_F(PickerLoadTest, WithoutServicesEachFailingStepReportsAndTheWindowOpens) {
  around.module.setNTConnection(nullptr);
  open();
  EXPECT_TRUE(picker.isOpen());
  EXPECT_FALSE(picker.cmdMain[0].enabled());
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex("FLocation.Form_Load: .*"), MatchesRegex("MPublic: GRS: .*"),
                          MatchesRegex("FLocation.LoadCustomResources: .*")));
  EXPECT_EQ(around.screen.mousePointer(), MousePointer::Default);
}

TEST_F(PickerLoadTest, WithoutConnectionTheRootStands) {
  around.module.setDBConnection(nullptr);
  open();
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex("RefreshHardware: Line: [1-9][0-9]* :Object variable or With "
                               "block variable not set"),
                  "error in refreshhardware"));
  EXPECT_EQ(picker.tvTree.count(), 1);
}

TEST_F(PickerLoadTest, WithoutParentTheWindowOpensAndEachUseReports) {
  picker.setMode("singlelocation");
  around.screen.show(picker);
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(
                           "FLocation.Form_Load: Line: [1-9][0-9]* :Object variable .* not set")));
  click("TT1");
  picker.userPress(picker.cmdMain[0]);
  EXPECT_THAT(boxes(), testing::Contains(MatchesRegex("FLocation.cmdMain_Click: .*")));
  EXPECT_TRUE(picker.isOpen());
  picker.userClose();
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerLoadTest, ReopeningWhileOpenStoresParentAndModeAndDoesNotBuildAgain) {
  open("multilocation");
  click("TT1");
  const std::size_t statements = around.database->statements().size();
  RecordingTarget other;
  picker.setParent(other);
  picker.setMode("singlelocation");
  around.screen.show(picker);
  EXPECT_EQ(around.database->statements().size(), statements);
  EXPECT_EQ(around.screen.windowEvents.back(), "raise FLocation");
  EXPECT_EQ(around.screen.owners["FLocation"], 0x77U);
  EXPECT_EQ(picker.cmdMain[1].text(), "Cancel");
  picker.userPress(picker.cmdMain[0]);
  EXPECT_EQ(other.text, "D1 - Front");
  EXPECT_EQ(target.text, "before");
}

TEST_F(PickerLoadTest, ClosedWhileAReportIsOnScreenStopsTheLoad) {
  around.database->fail(
      "SELECT DoorID, DoorName, DoorIndex, Address FROM Doors WHERE Active = 1 AND Visible = 1 AND "
      "ControllerID = 8 ORDER BY DoorName ");
  around.screen.duringBox = [this](const BoxRequest&) { picker.userClose(); };
  open();
  EXPECT_FALSE(picker.isOpen());
  EXPECT_EQ(boxes().size(), 1U);
  EXPECT_THAT(around.database->statements().back(), testing::StartsWith("SELECT DoorID"));
  EXPECT_EQ(around.screen.mousePointer(), MousePointer::Default);
}

TEST_F(PickerLoadTest, OpeningAfterAnUnloadStartsAfresh) {
  open("multilocation");
  doubleClick("TT1");
  EXPECT_EQ(picker.addedCount(), 1);
  picker.userClose();
  open("multilocation");
  EXPECT_EQ(picker.addedCount(), 0);
  target.lvwLocation.clear();
  doubleClick("TT2");
  EXPECT_EQ(picker.addedCount(), 1);
  click("TT1");
  picker.userClose();
  open("multilocation");
  EXPECT_EQ(picker.lblLocation.text(), "<None>");
  EXPECT_FALSE(picker.lblLocation.bold());
  EXPECT_EQ(node("TT1").text, "Front");
}

TEST_F(PickerLoadTest, ReferencesSetAgainAreUsedFromTheNextStatementOn) {
  auto other = std::make_shared<RecordingServices>(around.journal);
  open();
  around.module.setNTConnection(other);
  around.services->failing.insert("ShowHelp");
  picker.userPress(picker.cmdMain[2]);
  EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
