// Changing trigger actions of the demonstration site.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class EditJourney : public ::testing::Test, protected EditorJourney {
 protected:
  void SetUp() override {
    openSummary();
    before = rows();
  }

  SiteRows before;
};

TEST_F(EditJourney, ShowsAStoredCctvAction) {
  edit("CCTV", 4);
  EXPECT_EQ(editor().caption(), "Edit Trigger Action");
  EXPECT_EQ(inEditor<TextBox>("txtLocation").text(), "012.01.013.I01");
  EXPECT_EQ(inEditor<ComboBox>("cmbEvents").selectedData(), 17);
  EXPECT_EQ(inEditor<ComboBox>("cmbCCTVSwitchers").selectedData(), 2);
  EXPECT_EQ(inEditor<ComboBox>("cmbCCTVCameras").selectedData(), 3);
  EXPECT_EQ(inEditor<ComboBox>("cmbCCTVPresets").selectedData(), 1);
  EXPECT_TRUE(inEditor<CheckBox>("chkCCTVDisplayViewer").checked());
  EXPECT_THAT(screen.boxes, IsEmpty());
}

TEST_F(EditJourney, ChangesTheOneCctvRow) {
  edit("CCTV", 4);
  showTab(1);
  choose("cmbCCTVMonitors", "4");
  press("cmdOK");
  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_THAT(added(before, rows()),
              ElementsAre(Pair("CCTV_TriggerAction",
                               ElementsAre("4 | 012.01.013.I01 | 17 | 2 | 1 | 3 | 4 | 1 | True | 0 "
                                           "| 17 | 012.01.013.I01"))));
  EXPECT_THAT(journal.of("host: LogEvent"),
              ElementsAre("(Update, TriggerAction, 4, Trigger Event 17, 1185)"));
}

TEST_F(EditJourney, AnUnchangedCctvTriggerKeepsAllButItsLocationText) {
  edit("CCTV", 1);
  press("cmdOK");
  EXPECT_THAT(added(before, rows()),
              ElementsAre(Pair("CCTV_TriggerAction",
                               ElementsAre("1 | 001.01.001.D01 | 1 | 1 | 1 | 1 | 1 | 1 | True | 0 "
                                           "| 1 | 001.01.001.D01"))));
}

TEST_F(EditJourney, EveryUnchangedRecorderTriggerKeepsItsRows) {
  for (const int id : {1, 2, 3, 4}) {
    edit("DVR / NVR", id);
    showTab(1);
    press("cmdOK");
    EXPECT_FALSE(isOpen("frmTriggerAction")) << id;
    screen.collect();
  }
  EXPECT_EQ(rows(), before);
  EXPECT_EQ(journal.of("host: LogEvent(Update, TriggerAction, 0, ").size(), 4U);
  EXPECT_THAT(screen.boxes, IsEmpty());
}

TEST_F(EditJourney, ChangesTheRecordersActionAndTrigger) {
  edit("DVR / NVR", 3);
  editor().setSingleLocation("001.01.007.D01 - Server room A", "001.01.007.D01");
  tickFilter("Alarm Events");
  inEditor<ComboBox>("cmbEvents").setListIndex(0);
  showTab(1);
  choose("cmbDVRUnit", "Head office recorder");
  choose("cmbDVRCamera", "Server rooms");
  choose("cmbDVRCameraPresets", "Rack row B");
  choose("cmbDVRRecordRate", "60.0 ips");
  press("cmdOK");
  EXPECT_THAT(
      added(before, rows()),
      ElementsAre(Pair("DVR_TriggerActions", ElementsAre("3 | 1 | 4 | 1 | 60 | 15 | 5 | 2 | 0")),
                  Pair("IntegratedDeviceTriggers", ElementsAre("3 | 001.01.007.D01 | 1 | 3 | 1"))));
}

TEST_F(EditJourney, TheSingleLocationComesFromThePicker) {
  edit("CCTV", 1);
  press("cmdSingleLocation");
  auto& tree = on<TreeView>("FLocation", "tvTree");
  TreeNode* door = nodeTagged(tree, "001.01.007.D02");
  ASSERT_NE(door, nullptr);
  tree.userSelect(*door);
  press("FLocation", "cmdMain(0)");
  EXPECT_EQ(inEditor<TextBox>("txtLocation").text(), "001.01.007.D02 - Server room B");
  EXPECT_EQ(inEditor<TextBox>("txtLocation").tag(), "001.01.007.D02");
  press("cmdOK");
  EXPECT_THAT(added(before, rows()).at("CCTV_TriggerAction"),
              ElementsAre("1 | 001.01.007.D02 | 1 | 1 | 1 | 1 | 1 | 1 | True | 0 | 1 | "
                          "001.01.007.D02 - Server room B"));
}

TEST_F(EditJourney, ApplyTwiceUpdatesTheSameRow) {
  edit("CCTV", 2);
  press("cmdApply");
  const SiteRows once = rows();
  press("cmdApply");
  EXPECT_EQ(rows(), once);
  EXPECT_TRUE(isOpen("frmTriggerAction"));
}

TEST_F(EditJourney, CancelChangesNothing) {
  edit("CCTV", 2);
  showTab(1);
  choose("cmbCCTVMonitors", "8");
  press("cmdCancel");
  EXPECT_EQ(rows(), before);
}

}  // namespace
}  // namespace pelorin::test
