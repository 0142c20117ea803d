// Values at the edge of what a save takes, and when the summary hears of it.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class SavedValuesTest : public EditorTest {
 protected:
  bool save() {
    journal.clear();
    return editor->SaveTriggerAction();
  }
  std::string firstWrite() const {
    const std::vector<std::string> all = writes();
    return all.empty() ? "nothing" : all.front();
  }
  void editFirstDoorEvent() {
    answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, 0, 0});
    editCctv();
  }
};

TEST_F(SavedValuesTest, ASingleBlankIsALocationWithoutAnAddress) {
  editFirstDoorEvent();
  textBox("txtLocation").userText(" ");
  EXPECT_TRUE(save());
  EXPECT_EQ(firstWrite(),
            "sql: exec CCTV_Update_TA 5, 11, 1, 1, 31, 100, '', 1, '100', ' ', 0, False");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(SavedValuesTest, ADurationIsTheLeadingNumberOfItsText) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  chooseClass(device_class::dvr);
  textBox("txtDVRAlarmDuration").setText("12abc");
  EXPECT_TRUE(save());
  EXPECT_THAT(firstWrite(), HasSubstr(" AlarmDuration=12 "));
}

TEST_F(SavedValuesTest, ASwitcherNumberTakesThirtyTwoBits) {
  database->answer("select SwitcherID, Name, INI_FILE from CCTV_Switchers",
                   {{"SwitcherID", "Name", "INI_FILE"}, {{2147483647, "Far", "far"}}});
  database->answer(
      "select Name, [Index] from CCTV_Cameras where SwitcherId =2147483647 order by [index]",
      {{"Name", "Index"}, {{"Gate", 1}}});
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 2147483647",
                   {{"nOutputs"}, {{1}}});
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  EXPECT_TRUE(save());
  EXPECT_THAT(firstWrite(), HasSubstr("CCTV_Insert_TA 2147483647, 1, 1, 0, 100, "));
}

TEST_F(SavedValuesTest, TheSummaryReloadsBeforeTheEditorCloses) {
  std::vector<std::string> order;
  editor = std::make_unique<frmTriggerAction>(
      module, catalogue, EditorRequest{},
      [&] { order.emplace_back(editor->isOpen() ? "reload" : "reload after close"); }, nullptr);
  editor->onUnloaded = [&] { order.emplace_back("closed"); };
  screen.show(*editor, 77);
  addLocations(1);
  button("cmdOK").userClick();
  EXPECT_THAT(order, ElementsAre("reload", "closed"));
}

}  // namespace
}  // namespace pelorin::test
