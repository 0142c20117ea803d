// Triggers of the demonstration site that must not be damaged by opening and saving them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {
namespace {

using ::testing::IsEmpty;

class EditorDangers : public ::testing::Test, protected EditorJourney {
 protected:
  void SetUp() override {
    openSummary();
    before = rows();
  }
  void saveChangesNothing() {
    const SiteRows opened = rows();
    editor().setSingleLocation("001.01.007.D01 - Server room A", "001.01.007.D01");
    journal.clear();
    press("cmdApply");
    press("cmdOK");
    EXPECT_TRUE(isOpen("frmTriggerAction"));
    EXPECT_THAT(statementsAndAudits(), IsEmpty());
    EXPECT_EQ(rows(), opened);
  }

  SiteRows before;
};

TEST_F(EditorDangers, ACctvTriggerThatVanishedDoesNotOverwriteARecorderTrigger) {
  direct->execute("delete from CCTV_TriggerAction where TA_ID = 3");
  edit("CCTV", 3);
  saveChangesNothing();
}

TEST_F(EditorDangers, ARecorderTriggerThatVanishedDoesNotOverwriteACctvTrigger) {
  direct->execute("exec TA_DeleteTrigger 2");
  edit("DVR / NVR", 2);
  saveChangesNothing();
}

TEST_F(EditorDangers, ATriggerOfAForeignClassIsLeftAlone) {
  edit("Intercom", 7);
  EXPECT_EQ(inEditor<ComboBox>("cmbActionDeviceClass").listIndex(), -1);
  saveChangesNothing();
}

TEST_F(EditorDangers, ATriggerWithoutItsActionOpensWithTheValuesOfANewOne) {
  edit("DVR / NVR", 6);
  EXPECT_EQ(inEditor<TextBox>("txtDVRAlarmDuration").text(), "15");
  press("cmdOK");
  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_EQ(rows(), before);
}

TEST_F(EditorDangers, ARateThatIsNotOfferedBecomesTheDefaultOneWhenSaved) {
  edit("DVR / NVR", 5);
  press("cmdOK");
  const SiteRows changed = added(before, rows());
  EXPECT_EQ(changed.size(), 1U);
  EXPECT_EQ(changed.at("DVR_TriggerActions").front(), "5 | 1 | 2 | 1 | 15 | 20 | 0 | 0 | 0");
}

TEST_F(EditorDangers, ATriggerDeletedWhileItsEditorIsOpenIsNotMadeAgain) {
  edit("CCTV", 4);
  direct->execute("delete from CCTV_TriggerAction where TA_ID = 4");
  const SiteRows deleted = rows();
  press("cmdOK");
  EXPECT_EQ(rows(), deleted);
}

TEST_F(EditorDangers, AConnectionTakenAwayWhileEditingWritesNothing) {
  edit("CCTV", 4);
  component.module().setDBConnection(nullptr);
  press("cmdOK");
  EXPECT_TRUE(isOpen("frmTriggerAction"));
  EXPECT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(rows(), before);
}

}  // namespace
}  // namespace pelorin::test
