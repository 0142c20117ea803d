// The box for a recorder's alarm duration.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

class DurationBoxTest : public EditorTest {
 protected:
  TextBox& box() { return textBox("txtDVRAlarmDuration"); }
  void openRecorderPanel() {
    openEditor();
    chooseClass(device_class::dvr);
  }
};

TEST_F(DurationBoxTest, ADisabledBoxIsNeverValidated) {
  openRecorderPanel();
  editor->userFocus(&box());
  combo("cmbDVRUnit").userSelect(1);
  ASSERT_FALSE(box().enabled());
  editor->userFocus(&combo("cmbDVRUnit"));
  EXPECT_EQ(box().text(), "0");
}

TEST_F(DurationBoxTest, AFailingVendorQueryLeavesTheBoxAsItIs) {
  openRecorderPanel();
  combo("cmbDVRUnit").userSelect(1);
  database->fail("EXECUTE DVR_Getvendorinfo 21");
  combo("cmbDVRUnit").userSelect(0);
  EXPECT_EQ(screen.boxes.size(), 1U);
  EXPECT_FALSE(box().enabled());
  addLocations(1);
  screen.boxes.clear();
  EXPECT_TRUE(editor->SaveTriggerAction()) << "the vendor without duration is still the known one";
}

TEST_F(DurationBoxTest, AVendorQueryWithoutARowIsAnUnknownVendor) {
  openRecorderPanel();
  combo("cmbDVRUnit").userSelect(1);
  database->answer("EXECUTE DVR_Getvendorinfo 21", {{"DVRVendorID"}, {}});
  combo("cmbDVRUnit").userSelect(0);
  EXPECT_TRUE(box().enabled());
  EXPECT_EQ(box().text(), "15");
}

}  // namespace
}  // namespace pelorin::test
