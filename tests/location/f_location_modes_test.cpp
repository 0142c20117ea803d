// Choosing one location, and adding several.
#include "tests/location/picker_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class PickerModesTest : public PickerTest {
 protected:
  void press(int index) { picker.userPress(picker.cmdMain[static_cast<std::size_t>(index)]); }
};

TEST_F(PickerModesTest, SingleModeTexts) {
  open("singlelocation");
  EXPECT_EQ(picker.Label1.text(), "Single-click to select location");
  EXPECT_TRUE(picker.cmdMain[0].visible());
  EXPECT_EQ(picker.cmdMain[1].text(), "Cancel");
}

TEST_F(PickerModesTest, MultiModeTexts) {
  open("multilocation");
  EXPECT_EQ(picker.Label1.text(), "Double-click to add location to list");
  EXPECT_FALSE(picker.cmdMain[0].visible());
  EXPECT_EQ(picker.cmdMain[1].text(), "Close");
}

TEST_F(PickerModesTest, ModeTextIsComparedWithoutRegardToCase) {
  open("SingleLocation");
  EXPECT_EQ(picker.cmdMain[1].text(), "Cancel");
}

TEST_F(PickerModesTest, AnyOtherModeTextIsMultiMode) {
  for (const char* mode : {"", "singlelocations", "single", " singlelocation"}) {
    open(mode);
    EXPECT_EQ(picker.cmdMain[1].text(), "Close") << mode;
    picker.unload();
  }
}

TEST_F(PickerModesTest, ClickOnALocationShowsItAndEnablesOk) {
  open();
  click("TT1");
  EXPECT_EQ(picker.lblLocation.text(), "D1 - Front");
  EXPECT_TRUE(picker.cmdMain[0].enabled());
}

TEST_F(PickerModesTest, TheWholeServerOfTheOlderFamilyIsALocation) {
  open();
  click("LA1");
  EXPECT_EQ(picker.lblLocation.text(), "\\\\MAIN.007 -  Lumet Configuration (MAIN)");
  EXPECT_TRUE(picker.cmdMain[0].enabled());
}

TEST_F(PickerModesTest, ClickOnAGroupingShowsNoneAndDisablesOk) {
  open();
  for (const char* grouping : {"SA", "IF1", "TA8", "JA1"}) {
    click("TT1");
    click(grouping);
    EXPECT_EQ(picker.lblLocation.text(), "<None>") << grouping;
    EXPECT_FALSE(picker.cmdMain[0].enabled()) << grouping;
  }
}

TEST_F(PickerModesTest, AddressBehindAnExclamationMarkIsAGrouping) {
  open();
  picker.tvTree.add(nullptr, {"CSRAccount1", "Bank", "!G7"});
  click("TT1");
  click("CSRAccount1");
  EXPECT_EQ(picker.lblLocation.text(), "<None>");
  EXPECT_FALSE(picker.cmdMain[0].enabled());
}

TEST_F(PickerModesTest, AmpersandIsShownAsItStands) {
  open();
  click("TT2");
  EXPECT_EQ(picker.lblLocation.text(), "D2 - R&D");
  EXPECT_FALSE(picker.lblLocation.useMnemonic());
}

TEST_F(PickerModesTest, OkHandsTheLocationBackAndCloses) {
  open();
  click("TT1");
  press(0);
  EXPECT_EQ(target.text, "D1 - Front");
  EXPECT_EQ(target.tag, "D1");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerModesTest, EnterIsOkOnceALocationIsSelected) {
  open();
  picker.userFocus(&picker.tvTree);
  picker.userKeyDown(key_code::enter);
  EXPECT_TRUE(picker.isOpen());
  click("TT1");
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(target.text, "D1 - Front");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerModesTest, SpaceDoesNothingInSingleMode) {
  open();
  picker.userFocus(&picker.tvTree);
  click("TT1");
  picker.userKeyDown(key_code::space);
  EXPECT_TRUE(picker.isOpen());
  EXPECT_EQ(target.lvwLocation.count(), 0);
}

TEST_F(PickerModesTest, DoubleClickDoesNothingInSingleMode) {
  open();
  doubleClick("TT1");
  EXPECT_EQ(picker.lblLocation.text(), "D1 - Front");
  EXPECT_EQ(target.lvwLocation.count(), 0);
  EXPECT_TRUE(picker.isOpen());
}

// The selection was moved by the program and the picker is asked for in the other mode meanwhile.
TEST_F(PickerModesTest, OkOnANodeThatIsNoLocationDoesNothing) {
  open("multilocation");
  click("TT1");
  picker.tvTree.setSelectedNode(&node("TA8"));
  picker.tvTree.userDoubleClick();
  open("singlelocation");
  ASSERT_TRUE(picker.cmdMain[0].enabled());
  press(0);
  EXPECT_EQ(target.text, "before");
  EXPECT_EQ(target.tag, "before");
  EXPECT_TRUE(picker.isOpen());
}

TEST_F(PickerModesTest, CancelClearsTheEditorsLocationAndCloses) {
  open();
  press(1);
  EXPECT_EQ(target.text, "");
  EXPECT_EQ(target.tag, "");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerModesTest, EscapeIsCancel) {
  open();
  picker.userKeyDown(key_code::escape);
  EXPECT_EQ(target.text, "");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerModesTest, EscapeInMultiModeClearsTheSingleLocationToo) {
  open("multilocation");
  picker.userKeyDown(key_code::escape);
  EXPECT_EQ(target.text, "");
  EXPECT_EQ(target.tag, "");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerModesTest, TitleBarCloseLeavesTheEditorsLocation) {
  open();
  picker.userClose();
  EXPECT_FALSE(picker.isOpen());
  EXPECT_EQ(target.text, "before");
  EXPECT_EQ(target.tag, "before");
}

TEST_F(PickerModesTest, ClosingTheEditorClosesThePickerWithoutCancel) {
  Form editor("frmTriggerAction", "", {100, 100});
  around.screen.show(editor);
  target.window = editor.hwnd();
  open();
  editor.unload();
  EXPECT_FALSE(picker.isOpen());
  EXPECT_EQ(target.text, "before");
}

TEST_F(PickerModesTest, AParentThatIsGoneIsAReportedErrorWithItsLine) {
  auto gone = std::make_unique<RecordingTarget>();
  picker.setParent(*gone);
  picker.setMode("multilocation");
  around.screen.show(picker);
  gone.reset();
  doubleClick("TT1");
  press(1);
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex("FLocation.tvTree_DblClick: Line: [1-9][0-9]* "
                                       ":Object variable or With block variable not set"),
                          MatchesRegex("FLocation.cmdMain_Click: Line: [1-9][0-9]* "
                                       ":Object variable or With block variable not set")));
  EXPECT_EQ(picker.addedCount(), 0);
}

TEST_F(PickerModesTest, HelpShowsTopic178) {
  open();
  press(2);
  EXPECT_EQ(around.journal.lines().back(), "host: ShowHelp(178)");
  EXPECT_TRUE(picker.isOpen());
}

TEST_F(PickerModesTest, DoubleClickAddsTheLocation) {
  open("multilocation");
  doubleClick("TT1");
  ASSERT_EQ(target.lvwLocation.count(), 1);
  EXPECT_EQ(target.lvwLocation.item(1).key, "D1");
  EXPECT_EQ(target.lvwLocation.item(1).text, "D1 - Front");
  EXPECT_EQ(target.lvwLocation.item(1).tag, "D1");
  EXPECT_EQ(picker.lblLocation.text(), "D1 - Front added");
  EXPECT_TRUE(picker.lblLocation.bold());
  EXPECT_EQ(picker.addedCount(), 1);
  EXPECT_TRUE(picker.isOpen());
}

TEST_F(PickerModesTest, AddingTheSameLocationTwiceChangesNothingTheSecondTime) {
  open("multilocation");
  doubleClick("TT1");
  doubleClick("TT1");
  EXPECT_EQ(target.lvwLocation.count(), 1);
  EXPECT_EQ(picker.lblLocation.text(), "D1 - Front");
  EXPECT_FALSE(picker.lblLocation.bold());
  EXPECT_EQ(picker.addedCount(), 1);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PickerModesTest, AddedIsAppendedAgainWithoutAClickInBetween) {
  open("multilocation");
  doubleClick("TT1");
  target.lvwLocation.clear();
  picker.tvTree.userDoubleClick();
  EXPECT_EQ(picker.lblLocation.text(), "D1 - Front added added");
  EXPECT_EQ(picker.addedCount(), 2);
}

TEST_F(PickerModesTest, ClickAfterAddingIsNotBoldAnyMore) {
  open("multilocation");
  doubleClick("TT1");
  click("TT2");
  EXPECT_FALSE(picker.lblLocation.bold());
  EXPECT_EQ(picker.lblLocation.text(), "D2 - R&D");
}

TEST_F(PickerModesTest, AFolderTakesTheBoldAwayHoweverItIsChosen) {
  open("multilocation");
  doubleClick("TT1");
  click("TA8");
  EXPECT_FALSE(picker.lblLocation.bold());
  doubleClick("TT2");
  picker.tvTree.setSelectedNode(&node("TA8"));
  picker.tvTree.userDoubleClick();
  EXPECT_FALSE(picker.lblLocation.bold());
}

TEST_F(PickerModesTest, DoubleClickOnAGroupingAddsNothing) {
  open("multilocation");
  doubleClick("TA8");
  picker.tvTree.add(nullptr, {"CSRAccount1", "Bank", "!G7"});
  doubleClick("CSRAccount1");
  EXPECT_EQ(target.lvwLocation.count(), 0);
  EXPECT_EQ(picker.lblLocation.text(), "<None>");
  EXPECT_EQ(picker.addedCount(), 0);
}

TEST_F(PickerModesTest, AnyOtherErrorOfTheListIsReportedAndNothingCounts) {
  open("multilocation");
  target.failure = RunTimeError(7, "Out of memory");
  doubleClick("TT1");
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("FLocation.tvTree_DblClick: Line: .* :Out of "
                                                "memory")));
  EXPECT_EQ(picker.lblLocation.text(), "D1 - Front");
  EXPECT_FALSE(picker.lblLocation.bold());
  EXPECT_EQ(picker.addedCount(), 0);
}

TEST_F(PickerModesTest, FailingButtonsReportUnderTheirName) {
  open();
  target.failure = RunTimeError(1, "broken");
  click("TT1");
  press(0);
  press(1);
  around.services->failing.insert("ShowHelp");
  press(2);
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("FLocation.cmdMain_Click: Line: .* :broken"),
                                   MatchesRegex("FLocation.cmdMain_Click: Line: .* :broken"),
                                   MatchesRegex("FLocation.cmdMain_Click: Line: .* :ShowHelp "
                                                "failed")));
  EXPECT_TRUE(picker.isOpen());
}

TEST_F(PickerModesTest, ActivatingSetsTheCaptionsEachTime) {
  open("multilocation");
  picker.Label1.setText("x");
  picker.cmdMain[1].setText("y");
  picker.Form_Activate();
  EXPECT_EQ(picker.Label1.text(), "Double-click to add location to list");
  EXPECT_EQ(picker.cmdMain[1].text(), "Close");
}

}  // namespace
}  // namespace pelorin::test
