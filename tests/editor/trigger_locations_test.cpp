// The locations of a trigger, and the way to the picker and back.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

class TriggerLocationsTest : public EditorTest {
 protected:
  ListView& list() { return control<ListView>("lvwLocation"); }
};

TEST_F(TriggerLocationsTest, AddingOpensThePickerForSeveralLocations) {
  openEditor();
  button("cmdAddLocation").userClick();
  button("cmdAddLocation").userClick();
  EXPECT_THAT(pickerModes, ElementsAre("multilocation", "multilocation"));
}

TEST_F(TriggerLocationsTest, TheDotsOpenThePickerForOneLocation) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  button("cmdSingleLocation").userClick();
  EXPECT_THAT(pickerModes, ElementsAre("singlelocation"));
}

TEST_F(TriggerLocationsTest, ThePickerWritesTextAndTagOfTheSingleLocation) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, 0, 0});
  editCctv().setSingleLocation("9.9 - Gate", "9.9");
  EXPECT_EQ(textBox("txtLocation").text(), "9.9 - Gate");
  EXPECT_EQ(textBox("txtLocation").tag(), "9.9");
}

TEST_F(TriggerLocationsTest, ThePickerAddsToTheEndOfTheList) {
  openEditor();
  addLocations(2);
  EXPECT_EQ(list().item(2).text, "1.1.2 - Door 2");
  EXPECT_EQ(list().item(2).tag, "1.1.2");
}

TEST_F(TriggerLocationsTest, AKeyInTheListIsError35602WhateverItsCase) {
  openEditor();
  editor->addLocation("a.b", "a.b - Door", "a.b");
  try {
    editor->addLocation("A.B", "A.B - Door", "A.B");
    FAIL() << "added twice";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), error_number::keyNotUnique);
  }
  EXPECT_EQ(list().count(), 1);
}

TEST_F(TriggerLocationsTest, AClosedEditorTakesNothing) {
  openEditor();
  editor->unload();
  editor->setSingleLocation("9.9 - Gate", "9.9");
  editor->addLocation("9.9", "9.9 - Gate", "9.9");
  EXPECT_EQ(textBox("txtLocation").text(), "");
  EXPECT_EQ(list().count(), 0);
}

TEST_F(TriggerLocationsTest, DeleteRemovesTheSelectedLocationAndSelectsNothing) {
  openEditor();
  addLocations(3);
  list().userSelect(2);
  button("cmdDeleteLocation").userClick();
  ASSERT_EQ(list().count(), 2);
  EXPECT_EQ(list().item(2).text, "1.1.3 - Door 3");
  EXPECT_EQ(list().selectedIndex(), 0);
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(TriggerLocationsTest, DeleteWithNothingSelectedLeavesTheListUnchanged) {
  openEditor();
  addLocations(2);
  button("cmdDeleteLocation").userClick();
  EXPECT_EQ(list().count(), 2);
}

TEST_F(TriggerLocationsTest, ADeletedLocationCanBeAddedAgain) {
  openEditor();
  addLocations(1);
  list().userSelect(1);
  button("cmdDeleteLocation").userClick();
  addLocations(1);
  EXPECT_EQ(list().count(), 1);
}

TEST_F(TriggerLocationsTest, AnErrorWhileDeletingIsReportedUnderTheHandlersName) {
  openEditor();
  addLocations(1);
  list().userSelect(1);
  struct Failing final : ControlView {
    void modelChanged(const Change&) override { throw RunTimeError(7, "no memory"); }
  } view;
  list().setView(&view);
  button("cmdDeleteLocation").userClick();
  list().setView(nullptr);
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("frmTriggerAction.cmdDeleteLocation_Click: Line: 0 :no memory"));
}

TEST_F(TriggerLocationsTest, AnEmptyListBlocksTheSaveWhateverTheTextBoxHolds) {
  openEditor();
  textBox("txtLocation").setText("1.2.3");
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Required field missing. Must specify one or more trigger locations."));
  EXPECT_EQ(screen.boxes.front().icon, BoxIcon::Information);
  EXPECT_EQ(screen.boxes.front().buttons, BoxButtons::Ok);
}

TEST_F(TriggerLocationsTest, AnEmptyTextBoxBlocksTheSaveWhateverTheListHolds) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  addLocations(1);
  textBox("txtLocation").setText("");
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Required field missing. Must specify trigger location."));
  EXPECT_EQ(screen.boxes.front().icon, BoxIcon::Information);
}

TEST_F(TriggerLocationsTest, ALocationTextWithoutABlankIsTheAddress) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  textBox("txtLocation").setText("somewhere");
  journal.clear();
  EXPECT_TRUE(editor->SaveTriggerAction());
  EXPECT_EQ(writes().front(),
            "sql: exec CCTV_Update_TA 5, 11, 1, 1, 31, 100, 'somewhere', 1, '100', 'somewhere', 0, "
            "False");
}

TEST_F(TriggerLocationsTest, TheListIsAReportWithOneColumnAndNoCheckMarks) {
  openEditor();
  EXPECT_EQ(list().columns().size(), 1U);
  EXPECT_FALSE(list().checkBoxes());
}

}  // namespace
}  // namespace pelorin::test
